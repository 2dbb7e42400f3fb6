// The menu bar of the frame, built from the tree of menu items and kept as they stand.
// User-interface thread only.
#pragma once

#include <QAction>
#include <QMenu>
#include <memory>
#include <vector>

#include "adapters/qt/change_list.h"
#include "platform/menu.h"

class QMainWindow;
class QMenuBar;
struct Form;
struct Key_Event;
struct Shell;

// The view of one item: an action, and for an item with items under it, or the window list, a menu.
struct Menu_Item_View final : Component_View {
  Menu_Item_View(Shell& shell, Menu_Item& item, QWidget& parent);
  ~Menu_Item_View() override;

  void Update() override;

  Shell& shell;
  Menu_Item& item;
  QMenu* menu = nullptr;      // owned by the parent widget, as is the action
  QAction* action = nullptr;  // the menu's own, or a plain one

 private:
  void Chosen();
  void Opened();
  void List_Windows();

  std::vector<std::unique_ptr<Menu_Item_View>> items_;
  QList<QAction*> windows_;  // at the end of the menu, made anew at each opening
};

struct Menu_Bar {
  Menu_Bar(Shell& shell, Form& frame, QMainWindow& window);

  // Opens the top-level menu whose access key this is. False if there is none that can be opened.
  bool Open(const Key_Event& key);

 private:
  QMenuBar* bar_;
  std::vector<std::unique_ptr<Menu_Item_View>> items_;
};
