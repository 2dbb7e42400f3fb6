#include "panel/input_box.h"

#include <algorithm>

#include "platform/text.h"
#include "windows/input_dlg_window.h"

std::string Input_Result;

namespace {

constexpr int Prompt_Corner_px = 150;
constexpr int Usual_Lines = 2;
constexpr int Line_px = 14;

void Close_With(std::string result) {
  Input_Result = std::move(result);
  Unload(Input_Dlg);
}

// A prompt of more lines than usual pushes what stands below it down.
void Make_Room(std::string_view prompt) {
  const auto breaks = std::ranges::count_if(prompt, [](char sign) { return sign == '\r' || sign == '\n'; });
  const int more_px = std::max(static_cast<int>(breaks) + 1 - Usual_Lines, 0) * Line_px;
  Input_Dlg.Input_Msg.height = Input_Dlg.Input_Msg.height() + more_px;
  for (Control* below : std::initializer_list<Control*>{&Input_Dlg.Input_Textbox, &Input_Dlg.Input_OK,
                                                        &Input_Dlg.Input_Cancel}) {
    below->top = below->top() + more_px;
  }
  Input_Dlg.height = Input_Dlg.height() + more_px * Twips_Per_Pixel();
}

}  // namespace

void Input_Box_Wire() {
  Input_Dlg.on_load = [] { Prompt_Place(Input_Dlg, {Input_Dlg_Width_px, Input_Dlg_Height_px}); };
  Input_Dlg.Input_OK.on_click = [] { Close_With(Input_Dlg.Input_Textbox.text()); };
  Input_Dlg.Input_Cancel.on_click = [] { Close_With({}); };
}

std::string Input_Box(std::string_view prompt, std::string_view title, std::string_view default_text) {
  Input_Result.clear();
  Load(Input_Dlg);
  Input_Dlg.caption = std::string(title);
  Input_Dlg.Input_Msg.caption = Literal_Caption(prompt);
  Make_Room(prompt);
  Input_Dlg.Input_Textbox.Set_Text(default_text);
  Input_Dlg.Input_Textbox.Select_All();
  Show(Input_Dlg);
  while (Input_Dlg.Loaded() && Wait_Events() > 0) {
  }
  return Input_Result;
}

void Prompt_Place(Form& form, Size_px size) {
  form.left = Prompt_Corner_px * Twips_Per_Pixel();
  form.top = Prompt_Corner_px * Twips_Per_Pixel();
  form.width = size.width * Twips_Per_Pixel();
  form.height = size.height * Twips_Per_Pixel();
}
