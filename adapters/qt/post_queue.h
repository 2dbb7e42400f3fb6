// Functions that other threads hand to the user-interface thread.
#pragma once

#include <QObject>
#include <deque>
#include <functional>
#include <mutex>

struct Post_Queue : QObject {
  // run_event runs one post as an event of the program.
  explicit Post_Queue(std::function<void(const std::function<void()>&)> run_event);

  void Post(std::function<void()> fn);  // from any thread

  // As long as one of these lives, posts wait; they run afterwards, in order. User-interface thread only.
  struct Held {
    explicit Held(Post_Queue& queue);
    ~Held();
    Held(const Held&) = delete;
    Held& operator=(const Held&) = delete;

    Post_Queue& posts;
  };

  bool event(QEvent* event) override;

 private:
  std::function<void(const std::function<void()>&)> run_event_;
  std::mutex mutex_;
  std::deque<std::function<void()>> waiting_;  // guarded by mutex_
  int held_ = 0;
};
