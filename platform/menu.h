// Menu items as data: a tree under the frame.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/property.h"

struct Form;
struct Key_Event;

struct Menu_Item final : Component {
  // caption: "&" marks the access key, "-" alone is a separator. shortcut: "Ctrl+N", "F1" or empty.
  Menu_Item(Form& frame, std::string_view item_name, std::string_view start_caption);
  Menu_Item(Menu_Item& parent_item, std::string_view item_name, std::string_view start_caption,
            std::string_view item_shortcut = {});

  Menu_Item* const parent;  // nullptr: in the menu bar
  const std::string_view shortcut;

  Property<std::string> caption;
  Property<bool> visible{*this, true};
  Property<bool> enabled{*this, true};
  Property<bool> checked{*this, false};
  bool checkable = false;
  bool window_list = false;  // the desktop lists the open child windows under it

  std::vector<Menu_Item*> items;
  std::function<void()> on_click;  // of an item with items under it: it is being opened
};

// Whether the item can be chosen: it and everything above it is visible and enabled.
bool Can_Choose(const Menu_Item& item);

// The menu of the bar that the key opens, by Alt and its access key; nullptr for none.
Menu_Item* Menu_Opened_By(const Key_Event& key);

// The user chose the item, or opened it. Nothing happens if it cannot be chosen.
void Choose(Menu_Item& item);
