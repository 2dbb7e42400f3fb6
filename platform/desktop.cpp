#include "platform/desktop.h"

#include <algorithm>
#include <string>

#include "platform/dispatch.h"
#include "platform/form.h"
#include "platform/timer.h"

std::string Application_Title = "MELVOR";

namespace {
Desktop* installed = nullptr;
constexpr int Twips_Per_Inch = 1440;
}  // namespace

void Install_Desktop(Desktop* desktop) { installed = desktop; }
bool Desktop_Installed() { return installed != nullptr; }
Desktop& The_Desktop() { return *installed; }

Answer Message_Box(std::string_view text, int style, std::string_view title) {
  const bool running = Open_Windows() > 0;
  const Timers_Suspended while_open;
  const Answer answer =
      The_Desktop().Message_Box(text, style, title.empty() ? std::string_view(Application_Title) : title);
  if (running && Open_Windows() == 0) throw Program_Ended();
  return answer;
}

int Do_Events() {
  The_Desktop().Run_Events(Event_Set::Without_Input);
  return Open_Windows();
}

int Do_All_Events() {
  The_Desktop().Run_Events(Event_Set::All);
  return Open_Windows();
}

int Wait_Events() {
  The_Desktop().Wait_Events();
  return Open_Windows();
}

int Twips_Per_Pixel() { return std::max(Twips_Per_Inch / std::max(The_Desktop().Pixels_Per_Inch(), 1), 1); }

void Beep() { The_Desktop().Beep(); }
