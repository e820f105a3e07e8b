// The blocks between the thread that reads, those that render and the one that writes.
#ifndef KAVI_TOOL_JOB_WINDOW_H
#define KAVI_TOOL_JOB_WINDOW_H

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

#include "renderer.h"

namespace kavi::tool {

// A block on its way: read, rendered by whichever thread is free, written in its turn.
struct Job {
    Block block;
    std::optional<Rendered> piece;  // the next to be written
    bool is_rendered = false;       // no other comes after that
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
    // The piece that is rendered next; waits until the one before has been taken.
    void add_piece(Job& job, Rendered piece) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&job] { return !job.piece.has_value(); });
        job.piece = std::move(piece);
        changed_.notify_all();
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

    // Waits for the next piece of the oldest job. None at the end, after a failure, or when
    // `is_over` returns true, which is called every 50 ms.
    template <typename IsOver>
    std::optional<Rendered> next(IsOver is_over) {
        constexpr std::chrono::milliseconds INTERVAL(50);
        std::unique_lock lock(mutex_);
        while (!is_over() && failure_.empty()) {
            if (std::optional<Rendered> piece = take_piece(); piece.has_value()) return piece;
            if (in_order_.empty() && ended_) break;
            changed_.wait_for(lock, INTERVAL);
        }
        return std::nullopt;
    }

    std::string failure() {
        const std::lock_guard lock(mutex_);
        return failure_;
    }

  private:
    // The piece of the oldest job, if there is one. Removes jobs that have no more.
    std::optional<Rendered> take_piece() {
        while (!in_order_.empty()) {
            Job& oldest = *in_order_.front();
            const bool is_over = oldest.is_rendered;
            std::optional<Rendered> piece = std::exchange(oldest.piece, std::nullopt);
            if (is_over) in_order_.pop_front();
            if (is_over || piece.has_value()) changed_.notify_all();
            if (!is_over || piece.has_value()) return piece;
        }
        return std::nullopt;
    }

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
