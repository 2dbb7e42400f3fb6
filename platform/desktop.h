// The desktop port: what the program expects of a window system. app/ or a test installs one before anything
// runs. All calls come on the user-interface thread, but for Post.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/property.h"

struct Form;
struct Control;

enum class Answer { Ok = 1, Cancel = 2, Retry = 4, Yes = 6, No = 7 };

// Style numbers of a message box: buttons plus icon.
constexpr int Box_Ok = 0;
constexpr int Box_Yes_No_Cancel = 3;
constexpr int Box_Yes_No = 4;
constexpr int Box_Retry_Cancel = 5;
constexpr int Box_Buttons_Mask = 7;
constexpr int Box_Stop = 16;
constexpr int Box_Question = 32;
constexpr int Box_Exclamation = 48;
constexpr int Box_Information = 64;
constexpr int Box_Icon_Mask = 112;

enum class Pointer_Shape { Default, Arrow, Hourglass };

struct Size_px {
  int width = 0;
  int height = 0;
};

// Which events a run of pending events may take.
enum class Event_Set {
  Without_Input,  // timers, posts and repaints; the user's input stays queued in order
  All,
};

struct Desktop {
  virtual ~Desktop() = default;

  // Shows a box and returns what the user answered. The closing of the box by Escape or its close box is
  // Cancel where there is such a button, else Ok; a Yes/No box cannot be closed so. No timer of the program
  // ticks meanwhile (the caller has suspended them) and no other window gets an event.
  virtual Answer Message_Box(std::string_view text, int style, std::string_view title) = 0;

  // Runs the events that are pending, and returns.
  virtual void Run_Events(Event_Set set) = 0;
  // Sleeps until an event (timer, post, input) has come, and runs what is pending.
  virtual void Wait_Events() = 0;
  // Ends the program's event loop once the event that runs now has ended. No box is shown any more: each is
  // answered at once as Escape does.
  virtual void Quit() = 0;

  virtual void Beep() = 0;
  // Plays the sound of the desktop's sound scheme. False if there is none.
  virtual bool Play_System_Sound(std::string_view alias) = 0;

  // After the toolkit's own scaling: what the program has to lay itself out for.
  virtual Size_px Screen_Size() = 0;
  virtual int Pixels_Per_Inch() = 0;

  // Adds a font file of the host for this process. False if it cannot be read as a font.
  virtual bool Add_Font(std::string_view host_path) = 0;
  // Takes it away again. 0, or the system's error number.
  virtual int Remove_Font(std::string_view host_path) = 0;

  // A form that was loaded (its controls are ready) or is about to go (its view may be dropped).
  virtual void Form_Loaded(Form& form) = 0;
  virtual void Form_Unloaded(Form& form) = 0;
  // Puts the form in front of the others; only the Editor's place at the bottom is kept (Form::bottom).
  virtual void Bring_To_Front(Form& form) = 0;
  // Gives the native keyboard focus to the control's form and view. The program's own focus is already there.
  virtual void Show_Focus(Form& form, Control* control) = 0;

  // A property of the component changed, for the first time since its Shown(). The desktop brings the view up
  // to date at the end of the event at the latest.
  virtual void Changed(Component& component) = 0;
  // A changed component is being destroyed.
  virtual void Forget(Component& component) = 0;

  // Monotonic time of this desktop, in microseconds.
  virtual std::int64_t Now_us() = 0;
  // Asks for Timers_Run_Due (timer.h) at that time; a later call replaces an earlier one. Negative: never.
  virtual void Wake_At_us(std::int64_t time_us) = 0;

  // Runs fn on the user-interface thread as an event of its own, in the order of the posts. From any thread.
  virtual void Post(std::function<void()> fn) = 0;
};

void Install_Desktop(Desktop* desktop);  // nullptr takes it away
bool Desktop_Installed();
Desktop& The_Desktop();  // REQUIRES: one is installed

// Title of the program, in boxes that have none of their own and in the desktop's list of programs.
extern std::string Application_Title;  // starts as "MELVOR"

// Shows a box; title empty: Application_Title. While it is open no timer ticks. Program_Ended (dispatch.h) if
// the program was closed meanwhile, by a signal: whoever asked must not act on an answer that nobody gave.
Answer Message_Box(std::string_view text, int style = Box_Ok, std::string_view title = {});

// Lets timers, posts and repaints run once; the user's input stays queued. Returns how many windows are open.
int Do_Events();
// Lets everything run once, the user's input too. Returns how many windows are open.
int Do_All_Events();
// Sleeps until something happened, and lets it run. Returns how many windows are open.
int Wait_Events();

// A pixel of the screen in twips: 15 at 96 pixels per inch, 12 at 120; at least 1 at a density that the
// program is about to refuse.
int Twips_Per_Pixel();

void Beep();
