#include "pipeline.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <memory>
#include <new>
#include <optional>
#include <set>
#include <thread>
#include <utility>
#include <vector>

#include "document_frame.h"
#include "findings_report.h"
#include "interrupt.h"
#include "job_window.h"
#include "names.h"
#include "output.h"
#include "readings.h"
#include "renderer.h"

namespace kavi::tool {

namespace {

// One run over all inputs. The calling thread writes. A run that ends before the end of the input
// ends the process, since the reader may be waiting for input that never comes.
class Run {
  public:
    explicit Run(const Options& options)
        : options_(options),
          window_(std::size_t{2} * options.jobs + 2),
          progress_(options),
          frame_(document_frame(options.format)) {}

    int all() {
        had_pipe_signal_ = std::signal(SIGPIPE, SIG_IGN) != SIG_IGN;
        static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));  // the write fails instead
        take_interrupts([this] { leave_interrupted(); });
        if (const std::string faults = readings_.load(options_); !faults.empty()) {
            write_messages(faults);
            return EXIT_FAILURE;
        }
        require_written(output_.open(options_.output, options_.files));
        if (!options_.findings.empty()) {
            require_findings_written(findings_file_.open(options_.findings, options_.files));
        }
        is_shown_ = options_.format == FormatName::text && output_.is_terminal();
        announce_terminal(options_);
        require_written(output_.write(frame_.begin));
        try {
            start_threads();
        } catch (const std::exception& error) {
            fail(std::string("cannot start a thread: ") + error.what());
        }
        while (const std::optional<Rendered> piece = window_.next(interrupting_signal)) {
            write(*piece);
        }
        progress_.clear();
        if (interrupting_signal() != 0) leave_interrupted();
        if (const std::string failure = window_.failure(); !failure.empty()) fail(failure);
        for (std::thread& thread : threads_) thread.join();
        return end();
    }

    // Ends the process with a message.
    [[noreturn]] void fail(const std::string& message) {
        say_last(message);
        std::_Exit(EXIT_FAILURE);
    }

  private:
    // What a thread does; an exception ends the run.
    template <typename Work>
    void start(Work work) {
        threads_.emplace_back([this, work] {
            try {
                work();
            } catch (const std::bad_alloc&) {
                window_.fail("not enough memory");
            } catch (const std::exception& error) {
                window_.fail(error.what());
            }
        });
    }

    void start_threads() {
        start([this] {
            BlockReader reader(options_);
            for (auto job = std::make_unique<Job>(); reader.next(job->block);
                 job = std::make_unique<Job>()) {
                window_.add(std::move(job));
            }
            window_.end();
        });
        for (unsigned i = 0; i < options_.jobs; ++i) {
            start([this] {
                Renderer renderer(options_, readings_.everyday());
                while (Job* job = window_.take()) {
                    renderer.render(job->block, [&](Rendered piece) {
                        window_.add_piece(*job, std::move(piece));
                    });
                    window_.rendered(*job);
                }
            });
        }
    }

    void write(const Rendered& rendered) {
        const std::string messages =
            rendered.notice + findings_.take(rendered.findings) + rendered.failure;
        if (!messages.empty()) progress_.clear();
        write_messages(messages);
        std::string lines;
        for (const FindingMessage& finding : rendered.findings) lines += finding.json;
        require_findings_written(findings_file_.write(lines));
        require_written(output_.write(is_shown_ ? visible(rendered.output) : rendered.output));
        progress_.advance(rendered.bytes);
        lost_.insert(rendered.lost.begin(), rendered.lost.end());
        keep_least(LOST_MAX, lost_);
        texts_ += rendered.texts;
        all_read_ = all_read_ && rendered.all_read;
    }

    int end() {
        write_messages(findings_.not_written());
        write_lost();
        if (options_.summary) write_messages(findings_.summary());
        if (!all_read_ && !options_.output.empty()) fail("not all could be read");
        require_written(output_.write(frame_.end));
        if (!options_.findings.empty()) require_findings_written(findings_file_.commit());
        require_written(output_.commit());
        return all_read_ && !(options_.strict && !findings_.empty()) ? EXIT_SUCCESS : EXIT_FAILURE;
    }

    void write_lost() const {
        std::size_t n = 0;
        for (const std::string& name : lost_) {
            const bool is_told = ++n < LOST_MAX;
            write_messages("kavi-tn: SSML has nothing for " +
                           (is_told ? in_quotes(name) + "; it is" : "others either; they are") +
                           " left out\n");
        }
    }

    // Says what became of the files that were to be written, too.
    void say_last(const std::string& message) {
        std::string files;
        if (output_.abandon()) files += "; " + shown(options_.output) + " is as it was";
        if (findings_file_.abandon()) files += "; " + shown(options_.findings) + " is as it was";
        write_messages("kavi-tn: " + message + files + "\n");
        std::cerr.flush();
    }

    [[noreturn]] void leave_interrupted() {
        say_last("interrupted after " + std::to_string(texts_) + " texts");
        die_by(interrupting_signal());
    }

    void require_written(int error) {
        if (error == 0) return;
        if (error == EPIPE && had_pipe_signal_) {
            output_.abandon();
            findings_file_.abandon();
            die_by(SIGPIPE);
        }
        const std::string name =
            options_.output.empty() ? "standard output" : shown(options_.output);
        fail("cannot write " + name + ": " + Output::describe(error));
    }

    void require_findings_written(int error) {
        if (error == 0) return;
        fail("cannot write " + shown(options_.findings) + ": " + Output::describe(error));
    }

    const Options& options_;
    bool had_pipe_signal_ = false;
    JobWindow window_;
    std::vector<std::thread> threads_;
    Output output_;
    bool is_shown_ = false;  // the output is for people, who look at it on a terminal
    Output findings_file_;
    Readings readings_;
    Progress progress_;
    FindingsReport findings_;
    DocumentFrame frame_;
    std::set<std::string> lost_;  // what the format had no word for
    std::atomic<std::size_t> texts_ = 0;
    bool all_read_ = true;
};

}  // namespace

int run_pipeline(const Options& options) {
    // Never destroyed: an end of the process does not wait for the threads, which use it.
    static Run* const run = new Run(options);
    try {
        return run->all();
    } catch (const std::exception& error) {
        run->fail(error.what());
    }
}

}  // namespace kavi::tool
