#include "adapters/jack/worker.h"

#include <thread>
#include <utility>

namespace Jack {
namespace {

using Steady = std::chrono::steady_clock;
constexpr std::chrono::seconds Patience(1);

void Run_Tasks(const std::shared_ptr<Worker::Queue>& queue) {
  std::unique_lock lock(queue->mutex);
  queue->thread = std::this_thread::get_id();
  for (;;) {
    if (queue->tasks.empty()) {
      if (queue->ending) break;
      queue->changed.wait(lock);
      continue;
    }
    const auto first = queue->tasks.begin();
    if (const auto due = first->first; due > Steady::now()) {
      queue->changed.wait_until(lock, due);
      continue;
    }
    std::function<void()> task = std::move(first->second);
    queue->tasks.erase(first);
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

bool Post_Task(const std::weak_ptr<Worker::Queue>& queue, std::function<void()> task,
               std::chrono::milliseconds delay) {
  const std::shared_ptr<Worker::Queue> tasks = queue.lock();
  if (tasks == nullptr) return false;
  const std::lock_guard lock(tasks->mutex);
  if (tasks->ended) return false;
  tasks->tasks.emplace(Steady::now() + delay, std::move(task));
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
