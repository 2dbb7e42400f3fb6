#include "panel/segments.h"

#include <string>

#include "platform/desktop.h"
#include "platform/directories.h"
#include "windows/editor_window.h"
#include "windows/state.h"

int Font_Loaded = Flag_False;

const std::array<std::string_view, Segment_Rows> Segment_Grid{
    "ZAAAAAAAZ", "BCZZDZZEF", "BCCZDZEEF", "BZCZDZEZF", "BZCZDZEZF", "BZCCDEEZF",
    "BZZCDEZZF", "BZZCDEZZF", "ZGGGZHHHZ", "IZZJKLZZM", "IZZJKLZZM", "IZJJKLLZM",
    "IZJZKZLZM", "IJJZKZLLM", "IJZZKZZLM", "IJZZKZZLM", "IJZZKZZLM", "ZNNNNNNNZ"};

namespace {

constexpr std::string_view Font_File = "MELVOR.FNT";
constexpr std::string_view Font_Face = "MELVOR";
constexpr std::string_view Box_Title = "MELVOR";

struct Character_Row {
  char character;
  std::string_view segments;
};

constexpr std::array Character_Rows{
    Character_Row{'\0', "ABCDEFGHIJKLMN"},
    Character_Row{'*', "CEGHJL"},
    Character_Row{'+', "DGHK"},
    Character_Row{',', "J"},
    Character_Row{'-', "GH"},
    Character_Row{'/', "EJ"},
    Character_Row{'0', "ABFEJIMN"},
    Character_Row{'1', "EFM"},
    Character_Row{'2', "AFHJN"},
    Character_Row{'3', "AFHMN"},
    Character_Row{'4', "BDGKH"},
    Character_Row{'5', "ABGHMN"},
    Character_Row{'6', "ABGHIMN"},
    Character_Row{'7', "AEJ"},
    Character_Row{'8', "ABFGHIMN"},
    Character_Row{'9', "ABFGHMN"},
    Character_Row{'A', "ABFGHIM"},
    Character_Row{'B', "ADFHKMN"},
    Character_Row{'C', "ABIN"},
    Character_Row{'D', "ADFKMN"},
    Character_Row{'E', "ABGHIN"},
    Character_Row{'F', "ABGHI"},
    Character_Row{'G', "ABHIMN"},
    Character_Row{'H', "BIFGHM"},
    Character_Row{'I', "ADKN"},
    Character_Row{'J', "FIMN"},
    Character_Row{'K', "BEGIL"},
    Character_Row{'L', "BIN"},
    Character_Row{'M', "BCEFIM"},
    Character_Row{'N', "BCFILM"},
    Character_Row{'O', "ABFIMN"},
    Character_Row{'P', "ABFGHI"},
    Character_Row{'Q', "ABFILMN"},
    Character_Row{'R', "ABFGHIL"},
    Character_Row{'S', "ABGHMN"},
    Character_Row{'T', "ADK"},
    Character_Row{'U', "BFIMN"},
    Character_Row{'V', "BEIJ"},
    Character_Row{'W', "BFIJLM"},
    Character_Row{'X', "CEJL"},
    Character_Row{'Y', "CEK"},
    Character_Row{'Z', "AEJN"},
    Character_Row{'[', "ABIN"},
    Character_Row{'\\', "CL"},
    Character_Row{']', "AFMN"},
    Character_Row{'^', "JL"},
    Character_Row{'_', "N"},
};

constexpr std::array<std::string_view, 256> By_Code() {
  std::array<std::string_view, 256> chars{};
  for (const Character_Row& row : Character_Rows)
    chars[static_cast<unsigned char>(row.character)] = row.segments;
  return chars;
}

std::string Font_Path() { return Data_Directory() + "/" + std::string(Font_File); }

}  // namespace

constinit const std::array<std::string_view, 256> Segment_Chars = By_Code();

void Pics_Build_Segments() {
  if (The_Desktop().Add_Font(Font_Path())) {
    Editor.Tone_Name.font_face = std::string(Font_Face);
    Font_Loaded = Flag_True;
    return;
  }
  const std::string shown_path = Program_Directory() + "\\" + std::string(Font_File);
  Message_Box("Error: Could not load font " + shown_path + "\nUsing default font.", Box_Ok | Box_Stop,
              Box_Title);
}

void Pics_Release_Font() {
  if (Font_Loaded != Flag_True) return;
  Font_Loaded = Flag_False;
  const int error = The_Desktop().Remove_Font(Font_Path());
  if (error != 0) Message_Box("Error " + std::to_string(error), Box_Ok | Box_Stop, Box_Title);
}
