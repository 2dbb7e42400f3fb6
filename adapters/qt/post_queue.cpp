#include "adapters/qt/post_queue.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

Post_Queue::Post_Queue(std::function<void(const std::function<void()>&)> run_event)
    : run_event_(std::move(run_event)) {}

void Post_Queue::Post(std::function<void()> fn) {
  {
    const std::lock_guard lock(mutex_);
    waiting_.push_back(std::move(fn));
  }
  QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

bool Post_Queue::event(QEvent* event) {
  if (event->type() != QEvent::User) return QObject::event(event);
  if (held_ > 0) return true;
  std::function<void()> fn;
  {
    const std::lock_guard lock(mutex_);
    if (waiting_.empty()) return true;
    fn = std::move(waiting_.front());
    waiting_.pop_front();
  }
  run_event_(fn);
  return true;
}

Post_Queue::Held::Held(Post_Queue& queue) : posts(queue) { ++posts.held_; }

Post_Queue::Held::~Held() {
  if (--posts.held_ > 0) return;
  const std::lock_guard lock(posts.mutex_);
  // Each held post lost its event; one event too many finds nothing to do.
  for (std::size_t count = posts.waiting_.size(); count > 0; --count) {
    QCoreApplication::postEvent(&posts, new QEvent(QEvent::User));
  }
}
