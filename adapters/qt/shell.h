// What the parts of the desktop share: the lists, queues and inputs, and the way of an event into the
// program. User-interface thread only.
#pragma once

#include <QHash>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include "adapters/qt/change_list.h"
#include "adapters/qt/focus_keeper.h"
#include "adapters/qt/fonts.h"
#include "adapters/qt/input_gate.h"
#include "adapters/qt/key_input.h"
#include "adapters/qt/mouse_input.h"
#include "adapters/qt/picture_store.h"
#include "adapters/qt/post_queue.h"
#include "adapters/qt/user_events.h"
#include "adapters/qt/wake_timer.h"

class QWidget;
struct Control;
struct Control_View;
struct Form;
struct Form_View;
struct Frame_View;

struct Shell {
  explicit Shell(std::string_view pictures_directory);
  ~Shell();
  Shell(const Shell&) = delete;
  Shell& operator=(const Shell&) = delete;

  Picture_Store pictures;
  Fonts fonts;
  Input_Gate gate;
  Change_List changes;
  Post_Queue posts;
  Wake_Timer wake_timer;
  Mouse_Input mouse;
  Key_Input keys;
  Focus_Keeper focus;
  User_Events user_events;
  Frame_View* frame = nullptr;  // the view of the loaded frame
  bool quitting = false;

  // One event of the program. At its end the views are brought up to date and the focus stands where the
  // program has it; at the end of the outermost one, windows that were closed meanwhile are destroyed.
  struct Event {
    explicit Event(Shell& shell);
    ~Event();
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;

    Shell& shell;
  };

  // Runs deed as an event of the user's: now, or when the gate lets it pass.
  void Deliver(std::function<void()> deed);

  Form_View* View_Of(const Form& form) const;           // nullptr: not loaded
  Control_View* View_Of(const Control& control) const;  // nullptr: its form is not loaded

  // The control that the widget belongs to, the form whose body it is; nullptr for none.
  Control_View* Control_At(const QWidget& widget) const;
  Form_View* Form_At(const QWidget& widget) const;

  QHash<const QWidget*, Control_View*> control_widgets;
  QHash<const QWidget*, Form_View*> form_bodies;

  void Add_Form(Form& form);
  void Drop_Form(Form& form);

 private:
  std::vector<std::unique_ptr<Form_View>> forms_;
  std::vector<std::unique_ptr<Form_View>>
      dropped_;  // closed, but perhaps still in use further down the stack
  int depth_ = 0;
};
