#include "adapters/qt/input_gate.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <memory>
#include <utility>

Input_Gate::In_Mode::In_Mode(Input_Gate& the_gate, Mode mode)
    : gate(the_gate), mode_before(the_gate.mode_), passing_before(the_gate.passing_) {
  gate.mode_ = mode;
  gate.passing_ = false;
}

Input_Gate::In_Mode::~In_Mode() {
  gate.mode_ = mode_before;
  gate.passing_ = passing_before;
  if (!gate.waiting_.empty()) gate.Drain_Soon();
}

void Input_Gate::Run(std::function<void()> deed) {
  if (Must_Wait()) {
    waiting_.push_back(std::move(deed));
  } else {
    deed();
  }
}

void Input_Gate::Keep(QObject& receiver, const QEvent& event) {
  waiting_.push_back([to = QPointer<QObject>(&receiver), copy = std::shared_ptr<QEvent>(event.clone())] {
    if (to) QCoreApplication::sendEvent(to, copy.get());
  });
}

void Input_Gate::Drain() {
  while (mode_ == Mode::Open && !waiting_.empty()) {
    const std::function<void()> deed = std::move(waiting_.front());
    waiting_.pop_front();
    const bool before = std::exchange(passing_, true);
    deed();
    passing_ = before;
  }
}

void Input_Gate::Drain_Soon() {
  QMetaObject::invokeMethod(
      this, [this] { Drain(); }, Qt::QueuedConnection);
}
