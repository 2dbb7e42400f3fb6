// A desktop on which nothing happens, the ground of those that tests, fuzz targets and benchmarks need.
// Installs itself while it lives.
#pragma once

#include "platform/desktop.h"

struct Still_Desktop : Desktop {
  Still_Desktop() { Install_Desktop(this); }
  ~Still_Desktop() override { Install_Desktop(nullptr); }
  Still_Desktop(const Still_Desktop&) = delete;
  Still_Desktop& operator=(const Still_Desktop&) = delete;

  Answer Message_Box(std::string_view, int, std::string_view) override { return Answer::Ok; }
  void Run_Events(Event_Set) override {}
  void Wait_Events() override {}
  void Quit() override {}
  void Beep() override {}
  bool Play_System_Sound(std::string_view) override { return true; }
  Size_px Screen_Size() override { return {1280, 1024}; }
  int Pixels_Per_Inch() override { return 96; }
  bool Add_Font(std::string_view) override { return true; }
  int Remove_Font(std::string_view) override { return 0; }
  void Form_Loaded(Form&) override {}
  void Form_Unloaded(Form&) override {}
  void Bring_To_Front(Form&) override {}
  void Show_Focus(Form&, Control*) override {}
  void Changed(Component&) override {}
  void Forget(Component&) override {}
  std::int64_t Now_us() override { return 0; }
  void Wake_At_us(std::int64_t) override {}
  void Post(std::function<void()> fn) override { fn(); }
};
