#include "platform/menu.h"

#include "platform/dispatch.h"
#include "platform/events.h"
#include "platform/form.h"
#include "platform/text.h"

Menu_Item::Menu_Item(Form& frame, std::string_view item_name, std::string_view start_caption)
    : Component(item_name), parent(nullptr), caption(*this, std::string(start_caption)) {
  frame.menus.push_back(this);
}

Menu_Item::Menu_Item(Menu_Item& parent_item, std::string_view item_name, std::string_view start_caption,
                     std::string_view item_shortcut)
    : Component(item_name),
      parent(&parent_item),
      shortcut(item_shortcut),
      caption(*this, std::string(start_caption)) {
  parent_item.items.push_back(this);
}

bool Can_Choose(const Menu_Item& item) {
  for (const Menu_Item* part = &item; part != nullptr; part = part->parent) {
    if (!part->visible() || !part->enabled()) return false;
  }
  return true;
}

Menu_Item* Menu_Opened_By(const Key_Event& key) {
  if (key.shift != Alt_Key || key.code == 0 || Frame_Form() == nullptr) return nullptr;
  for (Menu_Item* menu : Frame_Form()->menus) {
    if (Access_Key(menu->caption()) == key.code && (menu->window_list || !menu->items.empty()) &&
        Can_Choose(*menu))
      return menu;
  }
  return nullptr;
}

void Choose(Menu_Item& item) {
  if (Can_Choose(item) && item.on_click) Dispatch(item.on_click);
}
