// A desktop that is driven by a test: a clock moved by hand, boxes answered from a script, the user's events
// as verbs. It refuses misuse: a box that nobody expected, or a wait that nothing can end, fails the test.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "platform/input.h"
#include "support/still_desktop.h"

struct Scripted_Desktop final : Still_Desktop {
  ~Scripted_Desktop() override;

  // The clock. Due timers tick in the order of their times.
  void Advance_ms(int milliseconds);

  // The next box, in the order of these calls, must have the text (empty: any) and gets the answer.
  void Expect_Box(Answer answer, const std::string& text = {}) { expected.push_back({answer, text}); }
  // Answers the boxes that nobody expected; without it they fail the test.
  std::function<Answer()> on_other_box;
  std::vector<std::string> boxes;  // the texts of all that were shown
  std::string Last_Box() const { return boxes.empty() ? std::string() : boxes.back(); }

  // The user's hand. Places are in pixels of the control.
  void Press(Control& control, int button = Left_Button, float x = 4, float y = 4) {
    Mouse_Down(control, {button, 0, x, y});
  }
  void Move(Control& control, float x, float y, int buttons = Left_Button) {
    Mouse_Move(control, {buttons, 0, x, y});
  }
  void Click(Control& control, int button = Left_Button);
  void Double_Click(Control& control);
  // A key in the active form. True if it was used up.
  bool Key(int code, int shift = 0, int character = 0);
  void Type(Text_Box& box, const std::string& text);  // replaces the text

  // What the user does while the program waits (Dlg_Wait, previews): one step at each wait.
  void At_Wait(std::function<void()> step) { at_wait.push_back(std::move(step)); }
  // What the user does at any other wait.
  std::function<void()> on_other_wait;

  // Desktop
  Answer Message_Box(std::string_view text, int style, std::string_view title) override;
  void Run_Events(Event_Set set) override;
  void Wait_Events() override;
  void Quit() override { quit = true; }
  Size_px Screen_Size() override { return screen; }
  int Pixels_Per_Inch() override { return pixels_per_inch; }
  bool Add_Font(std::string_view host_path) override;
  int Remove_Font(std::string_view host_path) override;
  std::int64_t Now_us() override { return now_us; }
  void Wake_At_us(std::int64_t time_us) override { wake_us = time_us; }
  void Post(std::function<void()> fn) override { posts.push_back(std::move(fn)); }

  Size_px screen{1280, 1024};
  int pixels_per_inch = 96;
  bool fonts_load = true;
  int remove_font_error = 0;
  std::vector<std::string> fonts;
  bool quit = false;

 private:
  void Run_Posts();
  void Run_Timers_Until(std::int64_t time_us);

  std::int64_t now_us = 0;
  std::int64_t wake_us = -1;
  std::deque<std::pair<Answer, std::string>> expected;
  std::deque<std::function<void()>> posts, at_wait;
};
