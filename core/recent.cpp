#include "core/recent.h"

#include <algorithm>

#include "core/file_places.h"
#include "platform/text.h"
#include "windows/frame_window.h"
#include "windows/state.h"

Recent_List Recent_Tones;
Recent_List Recent_Seqs;

namespace {

struct Recent_Menu {
  Menu_Item* separator;
  std::array<Menu_Item*, 4> items;
};

void Put_In_Front(Recent_List& list, std::string_view path) {
  const auto last = list.end() - 1;
  const auto same =
      std::find_if(list.begin(), last, [path](const std::string& entry) { return Same_Text(entry, path); });
  if (same == list.begin()) return;
  std::move_backward(list.begin(), same, same + 1);
  list.front() = path;
}

void Build_Menu(const Recent_List& list, const Recent_Menu& menu) {
  menu.separator->visible =
      std::ranges::any_of(list, [](const std::string& entry) { return !entry.empty(); });
  for (std::size_t place = 0; place < list.size(); ++place) {
    Menu_Item& item = *menu.items[place];
    item.visible = !list[place].empty();
    if (!list[place].empty())
      item.caption = "&" + std::to_string(place + 1) + " " + Literal_Caption(list[place]);
  }
}

void Add(Recent_List& list, const Recent_Menu& menu, std::string_view added) {
  const std::string path = Trim(added);
  for (std::string& entry : list) {
    if (File_Exists(entry) == Flag_False) entry.clear();
  }
  if (!path.empty()) Put_In_Front(list, path);
  Build_Menu(list, menu);
}

}  // namespace

void Recent_Tone_Add(std::string_view path) {
  const Recent_Menu menu{
      &MELVOR.Menu_File_SYX_Trenn_1,
      {&MELVOR.Menu_File_SYX_1, &MELVOR.Menu_File_SYX_2, &MELVOR.Menu_File_SYX_3, &MELVOR.Menu_File_SYX_4}};
  Add(Recent_Tones, menu, path);
}

void Recent_Seq_Add(std::string_view path) {
  const Recent_Menu menu{
      &MELVOR.Menu_File_Seq_Trenn_1,
      {&MELVOR.Menu_File_Seq_1, &MELVOR.Menu_File_Seq_2, &MELVOR.Menu_File_Seq_3, &MELVOR.Menu_File_Seq_4}};
  Add(Recent_Seqs, menu, path);
}
