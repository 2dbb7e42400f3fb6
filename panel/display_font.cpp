#include "panel/display_font.h"

#include <string>
#include <string_view>

#include "platform/desktop.h"
#include "platform/directories.h"
#include "platform/drives.h"
#include "windows/editor_window.h"
#include "windows/state.h"

int Font_Loaded = Flag_False;

namespace {

constexpr std::string_view Font_File = "MELVOR.FNT";
constexpr std::string_view Font_Face = "MELVOR";
constexpr std::string_view Box_Title = "MELVOR";

std::string Font_Path() { return Data_Directory() + "/" + std::string(Font_File); }

}  // namespace

void Pics_Build_Segments() {
  if (The_Desktop().Add_Font(Font_Path())) {
    Editor.Tone_Name.font_face = std::string(Font_Face);
    Font_Loaded = Flag_True;
    return;
  }
  const std::string shown_path = Program_Path(Font_Path());
  Message_Box("Error: Could not load font " + shown_path + "\nUsing default font.", Box_Ok | Box_Stop,
              Box_Title);
}

void Pics_Release_Font() {
  if (Font_Loaded != Flag_True) return;
  Font_Loaded = Flag_False;
  const int error = The_Desktop().Remove_Font(Font_Path());
  if (error != 0) Message_Box("Error " + std::to_string(error), Box_Ok | Box_Stop, Box_Title);
}
