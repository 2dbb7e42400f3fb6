// A thread for requests to the JACK server: they wait as long as the server is stopped, and the program must
// not.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>

namespace Jack {

struct Worker {
  // Throws std::system_error where the system has no thread for it.
  Worker();
  // Waits up to a second for the posted tasks, and for those that they post in turn. Then it abandons them
  // with their thread: a server that stays stopped does not keep the program from ending.
  ~Worker();
  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

  // Runs the tasks one after another, in the order in which they are due. From any thread but the server's
  // process thread.
  void Post(std::function<void()> task);

  struct Queue {
    std::mutex mutex;
    std::condition_variable changed;
    std::multimap<std::chrono::steady_clock::time_point, std::function<void()>>
        tasks;  // by when they are due
    bool ending = false;
    bool ended = false;
    std::thread::id thread;
  };
  // For those who may outlive the worker: what they post then is dropped.
  std::weak_ptr<Queue> Tasks() const { return queue_; }

 private:
  std::shared_ptr<Queue> queue_;
};

// Puts a task into the queue, after those that are due by then. False if the queue has ended.
bool Post_Task(const std::weak_ptr<Worker::Queue>& queue, std::function<void()> task,
               std::chrono::milliseconds delay = {});

// Whether the caller is one of the queue's tasks.
bool On_Worker(const std::weak_ptr<Worker::Queue>& queue);

}  // namespace Jack
