#include "readings.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>

#include "names.h"

namespace kavi::tool {

std::string Readings::load(const Options& options) {
    everyday_.set_all(options.everyday);
    for (const EverydayClass everyday_class : options.without) everyday_.set(everyday_class, false);
    everyday_.set_american_dates(options.american_dates);
    is_on_ = options.everyday || !options.lexicon.empty();
    if (options.lexicon.empty()) return {};
    std::ifstream file(options.lexicon, std::ios::binary);
    std::ostringstream bytes;
    if (!file || !(bytes << file.rdbuf())) {
        return shown(options.lexicon) + ": cannot be read: " + std::strerror(errno);
    }
    std::string error;
    return lexicon_.add(shown(options.lexicon), bytes.str(), error) ? "" : error;
}

}  // namespace kavi::tool
