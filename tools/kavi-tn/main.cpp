// The command line.

#include <fcntl.h>
#include <unistd.h>

#include <exception>
#include <string>

#include "check.h"
#include "command_line.h"
#include "output.h"
#include "pipeline.h"
#include "stream.h"

namespace {

// A closed standard descriptor would be given to the next file that is opened, and messages would
// go into the output. It is replaced by one that cannot be used for what it is for, so that this
// is still a failure.
void open_standard_descriptors() {
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(descriptor, F_GETFD) >= 0) continue;
        ::open("/dev/null", descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY);
    }
}

}  // namespace

int main(int argc, char** argv) {
    using namespace kavi::tool;
    open_standard_descriptors();
    try {
        int status = 0;
        const auto options = parse_command_line(argc, argv, status);
        if (!options) return status;
        if (options->check) return run_check(*options);
        return options->stream ? run_stream(*options) : run_pipeline(*options);
    } catch (const std::exception& error) {
        write_messages("kavi-tn: " + std::string(error.what()) + "\n");
        return 1;
    }
}
