#include "mxdinfo/cli/batch.h"

#include <algorithm>
#include <condition_variable>
#include <map>
#include <mutex>
#include <thread>

namespace mxdinfo {
namespace {

class Batch {
 public:
  Batch(std::size_t count, unsigned jobs, const std::function<Rendered(std::size_t)>& make)
      : count_(count), ahead_(std::size_t{2} * jobs), make_(make) {
    for (unsigned i = 0; i < jobs; ++i) threads_.emplace_back([this] { work(); });
  }
  Batch(const Batch&) = delete;
  Batch& operator=(const Batch&) = delete;
  ~Batch() {
    stop();
    for (auto& thread : threads_) thread.join();
  }

  Rendered next() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return done_.contains(taken_); });
    Rendered result = std::move(done_.extract(taken_).mapped());
    ++taken_;
    changed_.notify_all();
    return result;
  }

 private:
  void stop() {
    const std::scoped_lock lock(mutex_);
    begun_ = count_;
    changed_.notify_all();
  }

  void work() {
    std::unique_lock lock(mutex_);
    while (true) {
      changed_.wait(lock, [this] { return begun_ >= count_ || begun_ < taken_ + ahead_; });
      if (begun_ >= count_) return;
      const std::size_t index = begun_++;
      lock.unlock();
      Rendered result = make_(index);
      lock.lock();
      done_.emplace(index, std::move(result));
      changed_.notify_all();
    }
  }

  const std::size_t count_;
  const std::size_t ahead_;
  const std::function<Rendered(std::size_t)>& make_;
  std::mutex mutex_;
  std::condition_variable changed_;
  std::size_t begun_ = 0;
  std::size_t taken_ = 0;
  std::map<std::size_t, Rendered> done_;
  std::vector<std::thread> threads_;
};

}  // namespace

void run_batch(std::size_t count, unsigned jobs, const std::function<Rendered(std::size_t)>& make,
               const std::function<bool(Rendered&&)>& take) {
  if (jobs == 0) jobs = std::max(1U, std::thread::hardware_concurrency());
  if (jobs == 1 || count < 2) {
    for (std::size_t i = 0; i < count && take(make(i)); ++i) {
    }
    return;
  }
  Batch batch(count, jobs, make);
  for (std::size_t i = 0; i < count && take(batch.next()); ++i) {
  }
}

}  // namespace mxdinfo
