#include "adapters/qt/menu_bar.h"

#include <QMainWindow>
#include <QMenuBar>

#include "adapters/qt/qt_text.h"
#include "adapters/qt/shell.h"
#include "platform/dispatch.h"
#include "platform/input.h"

Menu_Item_View::Menu_Item_View(Shell& the_shell, Menu_Item& the_item, QWidget& parent)
    : shell(the_shell), item(the_item) {
  if (item.items.empty() && !item.window_list) {
    action = new QAction(&parent);
    QObject::connect(action, &QAction::triggered, action, [this] { Chosen(); });
  } else {
    menu = new QMenu(&parent);
    action = menu->menuAction();
    QObject::connect(menu, &QMenu::aboutToShow, menu, [this] { Opened(); });
  }
  action->setObjectName(To_Qt(item.name));
  for (Menu_Item* below : item.items) {
    items_.push_back(std::make_unique<Menu_Item_View>(shell, *below, *menu));
    menu->addAction(items_.back()->action);
  }
  shell.changes.Add(item, *this);
  Update();
}

Menu_Item_View::~Menu_Item_View() { shell.changes.Remove(item); }

void Menu_Item_View::Update() {
  const bool separator = item.caption() == "-";
  action->setSeparator(separator);
  if (!separator) {
    // The shortcut is only shown: the program itself acts on the key.
    const QString shortcut = item.shortcut.empty() ? QString() : u'\t' + To_Qt(item.shortcut);
    action->setText(To_Qt(item.caption()) + shortcut);
  }
  action->setVisible(item.visible());
  action->setEnabled(item.enabled());
  action->setCheckable(item.checkable || item.checked());
  action->setChecked(item.checked());
}

// The frame may be closed while this waits.
void Menu_Item_View::Chosen() {
  shell.Deliver([&changes = shell.changes, &item = item] {
    if (changes.Find(item) == nullptr) return;
    Choose(item);
    if (Component_View* view = changes.Find(item))
      view->Update();  // the toolkit has flipped a check mark by itself
  });
}

void Menu_Item_View::Opened() {
  Chosen();
  if (item.window_list) List_Windows();
}

void Menu_Item_View::List_Windows() {
  qDeleteAll(windows_);
  windows_.clear();
  for (Form* form : Loaded_Children()) {
    if (!form->visible()) continue;
    if (windows_.isEmpty()) windows_.push_back(menu->addSeparator());
    QString caption = To_Qt(form->caption());
    QAction* window = menu->addAction(caption.replace(u'&', QStringLiteral("&&")));
    window->setEnabled(form->enabled());
    window->setCheckable(true);
    window->setChecked(form == Active_Form());
    QObject::connect(window, &QAction::triggered, window, [&shell = shell, form] {
      shell.Deliver([&shell, form] {
        if (shell.View_Of(*form) == nullptr) return;
        Dispatch([form] { Bring_To_Front(*form); });
        User_Activated(*form);
      });
    });
    windows_.push_back(window);
  }
}

Menu_Bar::Menu_Bar(Shell& shell, Form& frame, QMainWindow& window) : bar_(window.menuBar()) {
  bar_->setNativeMenuBar(false);
  bar_->setContextMenuPolicy(Qt::PreventContextMenu);
  for (Menu_Item* item : frame.menus) {
    items_.push_back(std::make_unique<Menu_Item_View>(shell, *item, *bar_));
    bar_->addAction(items_.back()->action);
  }
}

bool Menu_Bar::Open(const Key_Event& key) {
  const Menu_Item* menu = Menu_Opened_By(key);
  for (const auto& view : items_) {
    if (&view->item == menu) bar_->setActiveAction(view->action);
  }
  return menu != nullptr;
}
