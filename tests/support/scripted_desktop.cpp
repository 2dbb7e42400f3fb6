#include "support/scripted_desktop.h"

#include <algorithm>
#include <stdexcept>

#include "platform/dispatch.h"
#include "platform/timer.h"

Scripted_Desktop::~Scripted_Desktop() {
  EXPECT_EQ(expected.size() + at_wait.size(), 0U) << "box(es) or step(s) for a wait that never came";
}

void Scripted_Desktop::Run_Timers_Until(std::int64_t time_us) {
  while (wake_us >= 0 && wake_us <= time_us) {
    now_us = std::max(now_us, wake_us);
    wake_us = -1;
    Timers_Run_Due();
  }
}

void Scripted_Desktop::Advance_ms(int milliseconds) {
  const std::int64_t end_us = now_us + std::int64_t{milliseconds} * 1000;
  Run_Timers_Until(end_us);
  now_us = end_us;
}

Answer Scripted_Desktop::Message_Box(std::string_view text, int, std::string_view) {
  if (quit) return Answer::Cancel;
  boxes.emplace_back(text);
  if (expected.empty() && on_other_box) return on_other_box();
  if (expected.empty()) {
    ADD_FAILURE() << "unexpected box: " << text;
    return Answer::Cancel;
  }
  const auto [answer, want] = expected.front();
  expected.pop_front();
  EXPECT_EQ(text, want.empty() ? text : want);
  return answer;
}

void Scripted_Desktop::Run_Posts() {
  while (!posts.empty()) {
    const std::function<void()> post = std::move(posts.front());
    posts.pop_front();
    Dispatch(post);
  }
}

void Scripted_Desktop::Run_Events(Event_Set) {
  Run_Posts();
  Run_Timers_Until(now_us);
}

void Scripted_Desktop::Wait_Events() {
  if (!posts.empty()) return Run_Posts();
  if (!at_wait.empty()) {
    const std::function<void()> step = std::move(at_wait.front());
    at_wait.pop_front();
    return step();
  }
  if (on_other_wait) return on_other_wait();
  if (wake_us < 0) throw std::logic_error("the program waits for what will never come");
  Run_Timers_Until(wake_us);
}

bool Scripted_Desktop::Add_Font(std::string_view host_path) {
  if (fonts_load) fonts.emplace_back(host_path);
  return fonts_load;
}

int Scripted_Desktop::Remove_Font(std::string_view host_path) {
  std::erase(fonts, host_path);
  return remove_font_error;
}

void Scripted_Desktop::Click(Control& control, int button) {
  Press(control, button);
  Mouse_Up(control, {button, 0, 4, 4}, true);
}

void Scripted_Desktop::Double_Click(Control& control) {
  Click(control);
  Mouse_Double(control, {Left_Button, 0, 4, 4});
}

bool Scripted_Desktop::Key(int code, int shift, int character) {
  Form* form = Active_Form() != nullptr ? Active_Form() : Frame_Form();
  return Key_Down(*form, Focused_Control(), {code, shift}, character);
}

void Scripted_Desktop::Type(Text_Box& box, const std::string& text) {
  User_Focused(box);
  User_Typed(box, text, static_cast<int>(text.size()), 0);
}
