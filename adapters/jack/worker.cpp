#include "adapters/jack/worker.h"

#include <chrono>
#include <thread>
#include <utility>

namespace Jack {
namespace {

constexpr std::chrono::seconds Patience(1);

void Run_Tasks(const std::shared_ptr<Worker::Queue>& queue) {
  std::unique_lock lock(queue->mutex);
  queue->thread = std::this_thread::get_id();
  for (;;) {
    queue->changed.wait(lock, [&queue] { return queue->ending || !queue->tasks.empty(); });
    if (queue->tasks.empty()) break;
    std::function<void()> task = std::move(queue->tasks.front());
    queue->tasks.pop_front();
    lock.unlock();
    task();
    task = nullptr;  // what it holds goes here, not under the lock
    lock.lock();
  }
  queue->ended = true;
  queue->changed.notify_all();
}

}  // namespace

Worker::Worker() : queue_(std::make_shared<Queue>()) { std::thread(Run_Tasks, queue_).detach(); }

Worker::~Worker() {
  std::unique_lock lock(queue_->mutex);
  queue_->ending = true;
  queue_->changed.notify_all();
  queue_->changed.wait_for(lock, Patience, [this] { return queue_->ended; });
}

void Worker::Post(std::function<void()> task) { Post_Task(queue_, std::move(task)); }

bool Post_Task(const std::weak_ptr<Worker::Queue>& queue, std::function<void()> task) {
  const std::shared_ptr<Worker::Queue> tasks = queue.lock();
  if (tasks == nullptr) return false;
  const std::lock_guard lock(tasks->mutex);
  if (tasks->ended) return false;
  tasks->tasks.push_back(std::move(task));
  tasks->changed.notify_all();
  return true;
}

bool On_Worker(const std::weak_ptr<Worker::Queue>& queue) {
  const std::shared_ptr<Worker::Queue> tasks = queue.lock();
  if (tasks == nullptr) return false;
  const std::lock_guard lock(tasks->mutex);
  return tasks->thread == std::this_thread::get_id();
}

}  // namespace Jack
