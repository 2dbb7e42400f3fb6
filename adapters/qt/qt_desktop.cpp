#include "adapters/qt/qt_desktop.h"

#include <QApplication>
#include <QEventLoop>
#include <QScreen>
#include <cstdio>
#include <cstdlib>

#include "adapters/qt/accessible.h"
#include "adapters/qt/control_view.h"
#include "adapters/qt/form_view.h"
#include "adapters/qt/frame_view.h"
#include "adapters/qt/look.h"
#include "adapters/qt/message_box.h"
#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"
#include "platform/form.h"

namespace {

QtMessageHandler Ordinary_Handler = nullptr;

// What is fatal while the application object is made is the want of a display. The toolkit would abort.
void Refuse_Without_Display(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type != QtFatalMsg) return Ordinary_Handler(type, context, text);
  std::fprintf(stderr,
               "MELVOR: no display to show the window on; DISPLAY is \"%s\", WAYLAND_DISPLAY is \"%s\".\n",
               qgetenv("DISPLAY").constData(), qgetenv("WAYLAND_DISPLAY").constData());
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

void Prepare_Toolkit() {
  Ordinary_Handler = qInstallMessageHandler(Refuse_Without_Display);
  // The toolkit's own event loop instead of GLib's: it asks all descriptors at every turn, so the timers'
  // alarm is never behind other sources, and nothing of the program needs GLib's.
  qputenv("QT_NO_GLIB", "1");
}

Qt_Desktop::Qt_Desktop(std::string_view pictures_directory) {
  qInstallMessageHandler(nullptr);
  QApplication::setQuitOnLastWindowClosed(false);
  Set_Look();
  shell_ = std::make_unique<Shell>(pictures_directory);
  Install_Accessible(*shell_);
}

Qt_Desktop::~Qt_Desktop() { Forget_Accessible(); }

int Qt_Desktop::Run() { return shell_->quitting ? 0 : QApplication::exec(); }

Answer Qt_Desktop::Message_Box(std::string_view text, int style, std::string_view title) {
  if (shell_->quitting) return Escape_Answer(style);
  shell_->changes.Apply();
  shell_->mouse.Give_Up();
  const Input_Gate::In_Mode only_the_box(shell_->gate, Input_Gate::Mode::Box);
  const Post_Queue::Held no_posts(shell_->posts);
  QWidget* over = QApplication::activeModalWidget();
  if (over == nullptr && shell_->frame != nullptr && shell_->frame->Window().isVisible()) {
    over = &shell_->frame->Window();
  }
  return Ask(text, style, title, over);
}

void Qt_Desktop::Run_Events(Event_Set set) {
  shell_->changes.Apply();
  if (set == Event_Set::Without_Input) {
    const Input_Gate::In_Mode shut(shell_->gate, Input_Gate::Mode::Shut);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  } else {
    const Input_Gate::In_Mode open(shell_->gate, Input_Gate::Mode::Open);
    shell_->gate.Drain();
    QCoreApplication::processEvents(QEventLoop::AllEvents);
  }
}

void Qt_Desktop::Wait_Events() {
  if (shell_->quitting) return;
  shell_->changes.Apply();
  const Input_Gate::In_Mode open(shell_->gate, Input_Gate::Mode::Open);
  const bool waited = shell_->gate.Must_Wait();
  shell_->gate.Drain();
  QCoreApplication::processEvents(waited ? QEventLoop::AllEvents : QEventLoop::WaitForMoreEvents);
}

void Qt_Desktop::Quit() {
  shell_->quitting = true;
  QCoreApplication::exit(0);
}

void Qt_Desktop::Beep() { QApplication::beep(); }

bool Qt_Desktop::Play_System_Sound(std::string_view) { return false; }

Size_px Qt_Desktop::Screen_Size() {
  const QSize size = QGuiApplication::primaryScreen()->size();
  return {size.width(), size.height()};
}

int Qt_Desktop::Pixels_Per_Inch() { return qRound(QGuiApplication::primaryScreen()->logicalDotsPerInchY()); }

bool Qt_Desktop::Add_Font(std::string_view host_path) { return shell_->fonts.Add(host_path); }

int Qt_Desktop::Remove_Font(std::string_view host_path) { return shell_->fonts.Remove(host_path); }

void Qt_Desktop::Form_Loaded(Form& form) { shell_->Add_Form(form); }

void Qt_Desktop::Form_Unloaded(Form& form) { shell_->Drop_Form(form); }

void Qt_Desktop::Bring_To_Front(Form& form) {
  shell_->changes.Apply();
  if (Form_View* view = shell_->View_Of(form)) view->Bring_To_Front();
}

void Qt_Desktop::Show_Focus(Form&, Control*) {
  shell_->changes.Apply();
  shell_->focus.Follow();
}

void Qt_Desktop::Changed(Component& component) { shell_->changes.Note(component); }

void Qt_Desktop::Forget(Component& component) { shell_->changes.Forget(component); }

std::int64_t Qt_Desktop::Now_us() { return Monotonic_us(); }

void Qt_Desktop::Wake_At_us(std::int64_t time_us) { shell_->wake_timer.Wake_At_us(time_us); }

void Qt_Desktop::Post(std::function<void()> fn) { shell_->posts.Post(std::move(fn)); }
