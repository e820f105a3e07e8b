// The blocks between the thread that reads, those that render and the one that writes.
#ifndef KAVI_TOOL_JOB_WINDOW_H
#define KAVI_TOOL_JOB_WINDOW_H

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "renderer.h"

namespace kavi::tool {

// A block on its way: read, rendered by whichever thread is free, written in its turn.
struct Job {
    Block block;
    Rendered rendered;
    bool is_rendered = false;
};

// The reader waits when there are `size` jobs.
class JobWindow {
  public:
    explicit JobWindow(std::size_t size) : size_(size) {}

    // ---- the reader ----

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

    // ---- a renderer ----

    // The next job to render, or null when there will be none.
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

    // ---- either: why it cannot go on ----

    void fail(std::string why) {
        const std::lock_guard lock(mutex_);
        if (failure_.empty()) failure_ = std::move(why);
        changed_.notify_all();
    }

    // ---- the writer ----

    // The oldest job once it is rendered; null at the end, after a failure, or when `is_over` says
    // so, which is asked now and then while the reader waits for input.
    template <typename IsOver>
    std::unique_ptr<Job> next(IsOver is_over) {
        constexpr std::chrono::milliseconds A_WHILE(50);
        std::unique_lock lock(mutex_);
        for (;;) {
            if (is_over() || !failure_.empty()) return nullptr;
            if (!in_order_.empty() && in_order_.front()->is_rendered) break;
            if (in_order_.empty() && ended_) return nullptr;
            changed_.wait_for(lock, A_WHILE);
        }
        std::unique_ptr<Job> job = std::move(in_order_.front());
        in_order_.pop_front();
        changed_.notify_all();
        return job;
    }

    std::string failure() {
        const std::lock_guard lock(mutex_);
        return failure_;
    }

  private:
    std::size_t size_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::unique_ptr<Job>> in_order_;
    std::deque<Job*> to_render_;
    std::string failure_;
    bool ended_ = false;
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_JOB_WINDOW_H
