#include "mxdinfo/cli/batch.h"

#include <algorithm>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace mxdinfo {
namespace {

class Batch {
 public:
  Batch(std::size_t count, std::size_t jobs,
        const std::function<Rendered_document(std::size_t)>& make)
      : count_(count), make_(make), finished_(2 * jobs) {
    threads_.reserve(jobs);
    try {
      while (threads_.size() < jobs) threads_.emplace_back([this] { work(); });
    } catch (const std::exception&) {
      // The threads that were started do the work, or the caller alone.
    }
  }
  Batch(const Batch&) = delete;
  Batch& operator=(const Batch&) = delete;
  ~Batch() {
    stop();
    for (auto& thread : threads_) thread.join();
  }

  Rendered_document next() {
    if (threads_.empty()) return make_(taken_++);
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return slot(taken_).has_value(); });
    Rendered_document result = std::move(*slot(taken_));
    slot(taken_).reset();
    ++taken_;
    changed_.notify_all();
    return result;
  }

 private:
  // A ring that is allocated before the threads start, so that handing over a result cannot fail.
  std::optional<Rendered_document>& slot(std::size_t index) {
    return finished_[index % finished_.size()];
  }

  void stop() {
    const std::scoped_lock lock(mutex_);
    begun_ = count_;
    changed_.notify_all();
  }

  void work() {
    std::unique_lock lock(mutex_);
    while (true) {
      changed_.wait(lock,
                    [this] { return begun_ >= count_ || begun_ < taken_ + finished_.size(); });
      if (begun_ >= count_) return;
      const std::size_t index = begun_++;
      lock.unlock();
      Rendered_document result = make_(index);
      lock.lock();
      slot(index) = std::move(result);
      changed_.notify_all();
    }
  }

  const std::size_t count_;
  const std::function<Rendered_document(std::size_t)>& make_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::size_t begun_ = 0;
  std::size_t taken_ = 0;
  std::vector<std::optional<Rendered_document>> finished_;
  std::vector<std::thread> threads_;
};

}  // namespace

void run_batch(std::size_t count, unsigned jobs,
               const std::function<Rendered_document(std::size_t)>& make,
               const std::function<bool(Rendered_document&&)>& take) {
  if (jobs == 0) jobs = std::max(1U, std::thread::hardware_concurrency());
  const std::size_t threads = std::min<std::size_t>(jobs, count);
  if (threads <= 1) {
    for (std::size_t i = 0; i < count && take(make(i)); ++i) {
    }
    return;
  }
  Batch batch(count, threads, make);
  for (std::size_t i = 0; i < count && take(batch.next()); ++i) {
  }
}

}  // namespace mxdinfo
