// The desktop on Qt 6: windows, menus, boxes, timers and pictures, built from the plain data of forms,
// controls and menu items. It knows no window of the program by name. Made by app/ after the application
// object and before the first form loads; everything on the user-interface thread, but for Post.
#pragma once

#include <memory>
#include <string_view>

#include "platform/desktop.h"

struct Shell;

// Settings of the toolkit that must stand before the application object is made. Where the toolkit finds no
// display for that object, the program ends with a word about it and exit status 1.
void Prepare_Toolkit();

struct Qt_Desktop final : Desktop {
  // pictures_directory: host path of the directory with the pictures, "<name>.svg" each.
  explicit Qt_Desktop(std::string_view pictures_directory);
  ~Qt_Desktop() override;

  // Runs the program until Quit; at once over if it has quit already. Returns the exit code.
  int Run();

  Answer Message_Box(std::string_view text, int style, std::string_view title) override;
  void Run_Events(Event_Set set) override;
  void Wait_Events() override;
  // Also closes a message box that is open: it answers as if Escape had closed it.
  void Quit() override;

  void Beep() override;
  // The toolkit plays no sounds but the beep: false for every alias.
  bool Play_System_Sound(std::string_view alias) override;

  Size_px Screen_Size() override;
  int Pixels_Per_Inch() override;

  bool Add_Font(std::string_view host_path) override;
  int Remove_Font(std::string_view host_path) override;

  void Form_Loaded(Form& form) override;
  void Form_Unloaded(Form& form) override;
  void Bring_To_Front(Form& form) override;
  void Show_Focus(Form& form, Control* control) override;

  void Changed(Component& component) override;
  void Forget(Component& component) override;

  std::int64_t Now_us() override;
  void Wake_At_us(std::int64_t time_us) override;

  void Post(std::function<void()> fn) override;

 private:
  std::unique_ptr<Shell> shell_;
};
