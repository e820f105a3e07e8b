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
    if (file) errno = 0;  // an empty file, too, is one of which nothing comes
    if (!file || (!(bytes << file.rdbuf()) && errno != 0)) {
        return "kavi-tn: " + shown(options.lexicon) + ": cannot be read: " + std::strerror(errno) +
               "\n";
    }
    std::string error;
    if (lexicon_.add(shown(options.lexicon), bytes.str(), error)) return {};
    std::istringstream faults(error);
    std::string lines;
    for (std::string line; std::getline(faults, line);) lines += "kavi-tn: " + line + "\n";
    return lines;
}

}  // namespace kavi::tool
