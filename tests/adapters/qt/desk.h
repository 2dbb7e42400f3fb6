// A desktop with a frame and a panel of its own, worked as a user does.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <functional>
#include <string>
#include <vector>

#include "adapters/qt/qt_desktop.h"
#include "platform/controls.h"
#include "platform/form.h"
#include "platform/menu.h"
#include "platform/timer.h"

using Texts = std::vector<std::string>;

struct Desk : testing::Test {
  Desk() {
    // What the case before left: windows to be destroyed, and perhaps a quit.
    QTimer::singleShot(0, [] { QCoreApplication::exit(); });
    QApplication::exec();
    Install_Desktop(&desktop);
    for (Form* form : {&frame, &panel}) {
      form->width = 400 * 15;
      form->height = 300 * 15;
    }
    knob.Place(100, 50, 16, 16);
    knob.tab_index = 0;
    lever.Place(150, 50, 16, 16);
    lever.tab_index = 1;
    text.Place(10, 100, 80, 20);
    text.tab_index = 2;
  }
  ~Desk() override { Install_Desktop(nullptr); }

  void Show_Windows() {
    Show(frame);
    Show(panel);
    ASSERT_TRUE(QTest::qWaitForWindowActive(Widget("FRAME").window()));
  }

  // The widget that shows the component of this name; fails the test if there is none.
  static QWidget& Widget(const char* name) {
    for (QWidget* widget : QApplication::allWidgets()) {
      if (widget->objectName() == QString::fromLatin1(name)) return *widget;
    }
    ADD_FAILURE() << "no widget " << name;
    std::abort();
  }

  // Mouse on the window system's level; the place in pixels of the widget.
  static void Press(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(widget.window()->windowHandle(), button, {}, widget.mapTo(widget.window(), place));
  }
  static void Release(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseRelease(widget.window()->windowHandle(), button, {}, widget.mapTo(widget.window(), place));
  }
  static void Move(QWidget& widget, QPoint place) {
    QTest::mouseMove(widget.window()->windowHandle(), widget.mapTo(widget.window(), place));
  }
  static void Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
  }

  // Runs events until it is so; fails the test if that never comes.
  static void Await(const std::function<bool()>& so) {
    ASSERT_TRUE(QTest::qWaitFor(so, 10'000)) << "never came";
  }

  // Works the message box that the next call opens, as soon as it stands.
  static void At_Box(std::function<void(QWidget&)> work) {
    QTimer::singleShot(0, [work] {
      QWidget* box = QApplication::activeModalWidget();
      box == nullptr ? At_Box(work) : work(*box);
    });
  }

  void Note(std::string what) { log.push_back(std::move(what)); }

  Texts log;
  Qt_Desktop desktop{QT_TEST_PICTURES};
  Form frame{Form_Role::Frame, "FRAME"};
  Menu_Item menu_file{frame, "Menu_File", "&File"};
  Menu_Item menu_new{menu_file, "Menu_New", "&New", "Ctrl+N"};
  Form panel{Form_Role::Child, "PANEL"};
  Picture_Box knob{panel, "Knob"};
  Picture_Box lever{panel, "Lever"};
  Text_Box text{panel, "Text"};
};
