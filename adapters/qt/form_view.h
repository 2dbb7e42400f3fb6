// The view of a form: a window of its own or inside the frame, with the views of its controls.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "adapters/qt/change_list.h"
#include "platform/form.h"

struct Control_View;
struct Shell;

// The inside of a form's window: its background, on which the controls lie.
struct Form_Body final : QWidget {
  Form_Body(Shell& shell, QWidget* parent, Qt::WindowFlags flags = {})
      : QWidget(parent, flags), shell_(shell) {}

  void Show_Background(const Form& form);
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  // For a body that is a window of its own; empty otherwise.
  std::function<void()> on_close, on_placed;

 private:
  Shell& shell_;
  Picture picture_;
};

struct Form_View : Component_View {
  Form_View(Shell& shell, Form& form);
  ~Form_View() override;

  void Update() final;

  // Forgets the form and its controls, which may go away, and hides the window.
  void Detach();

  virtual QWidget& Window() = 0;  // what is shown, hidden and destroyed
  virtual QWidget& Body() = 0;    // what the controls lie on
  // Makes it the toolkit's active window.
  virtual void Activate() = 0;
  virtual void Bring_To_Front() = 0;
  // Shows the pointer shape: the form's own, or the frame's over a form that has none.
  void Show_Pointer();

  Shell& shell;
  Form& form;

 protected:
  virtual void Show_Window() = 0;
  // The window reports nothing from now on.
  virtual void Silence() = 0;

  // Called by the constructors of the windows, when the body stands.
  void Build_Controls();
  QRect Wanted_Place() const;  // the form's place in pixels
  // The user put the window there; in pixels.
  void Report_Place(const QRect& place);
  void Report_Closing();

 private:
  std::vector<std::unique_ptr<Control_View>> controls_;
};

// Makes the view of the form by its role, in place but not shown yet.
std::unique_ptr<Form_View> Make_Form_View(Shell& shell, Form& form);
