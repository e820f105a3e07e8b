#include "pipeline.h"

#include <chrono>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <deque>
#include <iostream>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "findings_report.h"
#include "output.h"
#include "renderer.h"

namespace kavi::tool {

namespace {

volatile std::sig_atomic_t interrupted = 0;

void on_interrupt(int /*signal*/) {
    interrupted = 1;
}

// A block on its way: read, rendered by whichever thread is free, written in its turn.
struct Job {
    Block block;
    Rendered rendered;
    bool is_rendered = false;
};

// The window of blocks between the reader and the writer. The reader waits when it is full.
class Window {
  public:
    explicit Window(std::size_t size) : size_(size) {}

    // The reader's side. Null in the end.
    void add(std::unique_ptr<Job> job) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return in_order_.size() < size_; });
        in_order_.push_back(std::move(job));
        to_render_.push_back(in_order_.back().get());
        changed_.notify_all();
    }
    void end() {
        const std::lock_guard lock(mutex_);
        ended_ = true;
        changed_.notify_all();
    }

    // A renderer's side: the next job to render, or null when there will be none.
    Job* take() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [this] { return !to_render_.empty() || ended_; });
        if (to_render_.empty()) return nullptr;
        Job* job = to_render_.front();
        to_render_.pop_front();
        return job;
    }
    void rendered(Job& job) {
        const std::lock_guard lock(mutex_);
        job.is_rendered = true;
        changed_.notify_all();
    }

    // The writer's side: the oldest job once it is rendered, or null at the end. Looks up now and
    // then, so that an interrupt is seen while the reader waits for input.
    std::unique_ptr<Job> next() {
        constexpr std::chrono::milliseconds A_WHILE(50);
        std::unique_lock lock(mutex_);
        for (;;) {
            if (interrupted != 0) return nullptr;
            if (!in_order_.empty() && in_order_.front()->is_rendered) break;
            if (in_order_.empty() && ended_) return nullptr;
            changed_.wait_for(lock, A_WHILE);
        }
        std::unique_ptr<Job> job = std::move(in_order_.front());
        in_order_.pop_front();
        changed_.notify_all();
        return job;
    }

  private:
    std::size_t size_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::unique_ptr<Job>> in_order_;
    std::deque<Job*> to_render_;
    bool ended_ = false;
};

// The end before the end of the input. The reader may wait for input that never comes, so the
// process does not wait for it; what was written to a file is not kept.
[[noreturn]] void leave(Output& output, int status, const std::string& message) {
    output.abandon();
    write_messages(message);
    std::cerr.flush();
    std::_Exit(status);
}

void require_written(Output& output, const std::string& failure) {
    if (!failure.empty()) leave(output, 1, "kavi-tn: cannot write: " + failure + "\n");
}

// What becomes of the file that was to be written.
std::string as_it_was(const Options& options) {
    return options.output.empty() ? "\n" : "; " + options.output + " is as it was\n";
}

}  // namespace

int run_pipeline(const Options& options) {
    constexpr int INTERRUPTED = 130;
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));  // a write then fails and says why
    static_cast<void>(std::signal(SIGINT, on_interrupt));
    static_cast<void>(std::signal(SIGTERM, on_interrupt));

    Output output;
    require_written(output, output.open(options.output));
    const std::unique_ptr<Format> format = make_format(options);
    require_written(output, output.write(format->prologue()));

    Window window(2 * options.jobs + 2);
    std::vector<std::thread> threads;
    threads.emplace_back([&] {
        BlockReader reader(options);
        for (auto job = std::make_unique<Job>(); reader.next(job->block);
             job = std::make_unique<Job>()) {
            window.add(std::move(job));
        }
        window.end();
    });
    for (unsigned i = 0; i < options.jobs; ++i) {
        threads.emplace_back([&] {
            Renderer renderer(options);
            while (Job* job = window.take()) {
                job->rendered = renderer.render(job->block);
                window.rendered(*job);
            }
        });
    }

    bool all_read = true;
    std::size_t texts = 0;
    FindingsReport findings;
    Progress progress(options);
    while (const std::unique_ptr<Job> job = window.next()) {
        const Rendered& rendered = job->rendered;
        const std::string messages = findings.take(rendered.findings) + rendered.failure;
        if (!messages.empty()) progress.clear();
        write_messages(messages);
        require_written(output, output.write(rendered.output));
        progress.advance(job->block.bytes.size());
        texts += rendered.texts;
        all_read = all_read && rendered.all_read;
    }
    progress.clear();
    if (interrupted != 0) {
        leave(
            output, INTERRUPTED,
            "kavi-tn: interrupted after " + std::to_string(texts) + " texts" + as_it_was(options));
    }
    for (std::thread& thread : threads) thread.join();
    write_messages(findings.not_written());
    if (options.summary) write_messages(findings.summary());
    if (!all_read && !options.output.empty()) {
        leave(output, 1, "kavi-tn: not all could be read" + as_it_was(options));
    }
    require_written(output, output.write(format->epilogue()));
    require_written(output, output.commit());
    return all_read && !(options.strict && !findings.empty()) ? 0 : 1;
}

}  // namespace kavi::tool
