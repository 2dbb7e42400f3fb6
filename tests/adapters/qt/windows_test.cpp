#include <QAccessible>
#include <QFocusFrame>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

#include "desk.h"

namespace {

TEST_F(Desk, Children_Have_Their_Inside_Size_And_The_Bottom_One_Stays_Below) {
  Form floor(Form_Role::Child, "FLOOR");
  floor.border = Border::None;
  floor.bottom = true;
  floor.left = 99 * 15;
  floor.width = 528 * 15;
  floor.height = 400 * 15;
  Picture_Box plate(floor, "Plate");
  plate.Place(0, 0, 528, 400);
  plate.tab_index = 0;
  Show_Windows();
  Show(floor);
  EXPECT_EQ(Active_Form(), &floor);
  EXPECT_EQ(Widget("FLOOR").size(), QSize(528, 400));
  EXPECT_EQ(Widget("FLOOR").mapTo(&Widget("FRAME"), QPoint()), QPoint(0, 0)) << "fixed at the corner";
  EXPECT_EQ(Widget("PANEL").size(), QSize(300, 200));
  EXPECT_EQ(Widget("PANEL").parentWidget()->pos(), QPoint(30, 20));
  EXPECT_EQ(Widget("FRAME").childAt(150, 120), &Widget("PANEL")) << "the active one is still below";
  panel.width = 320 * 15;
  desktop.Run_Events(Event_Set::All);
  EXPECT_EQ(Widget("PANEL").width(), 320);
}

TEST_F(Desk, The_User_Moves_Activates_And_Closes_By_The_Title_Bar) {
  Form other(Form_Role::Child, "OTHER");
  other.width = 100 * 15;
  other.height = 100 * 15;
  other.left = 350 * 15;
  panel.on_activate = [&] { Note("panel"); };
  bool refuse = true;
  panel.on_query_unload = [&](bool& cancel) {
    Note("query");
    cancel = refuse;
  };
  Show_Windows();
  Show(other);
  log.clear();
  QWidget& title = *Widget("PANEL").parentWidget();
  QWidget& window = *title.window();
  const QPoint hold = title.mapTo(&window, QPoint(100, 8));
  Press(window, hold);
  Move(window, hold + QPoint(10, 7));
  Release(window, hold + QPoint(10, 7));
  EXPECT_EQ(log, std::vector<std::string>{"panel"});
  EXPECT_EQ(panel.left(), 40 * 15);
  EXPECT_EQ(panel.top(), 27 * 15);
  EXPECT_EQ(panel.width(), 300 * 15);
  title.close();
  EXPECT_TRUE(panel.Loaded());
  EXPECT_TRUE(title.isVisible());
  refuse = false;
  title.close();
  EXPECT_EQ(log, (std::vector<std::string>{"panel", "query", "query"}));
  EXPECT_FALSE(panel.Loaded());
  EXPECT_EQ(Active_Form(), &other);
}

TEST_F(Desk, An_Independent_Form_Locks_The_Others_And_Blocks_Nobody) {
  Form prompt(Form_Role::Independent, "PROMPT");
  prompt.width = 200 * 15;
  prompt.height = 80 * 15;
  Command_Button ok(prompt, "Ok");
  ok.Place(10, 10, 60, 24);
  ok.tab_index = 0;
  ok.is_default = true;
  ok.on_click = [&] { Unload(prompt); };
  knob.on_mouse_down = [&](const Mouse_Event&) { Note("knob"); };
  Show_Windows();
  Show(prompt);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Widget("PROMPT")));
  EXPECT_EQ(Widget("PROMPT").size(), QSize(200, 80));
  Click(Widget("Knob"));
  EXPECT_TRUE(log.empty());
  Type(Qt::Key_Return);
  EXPECT_FALSE(prompt.Loaded());
  Click(Widget("Knob"));
  EXPECT_EQ(log, std::vector<std::string>{"knob"});
}

TEST_F(Desk, Closing_The_Frame_Asks_First_And_Then_Ends_The_Program) {
  bool refuse = true;
  frame.on_query_unload = [&](bool& cancel) { cancel = refuse; };
  Show_Windows();
  QWidget& window = *Widget("FRAME").window();
  window.close();
  EXPECT_TRUE(window.isVisible());
  refuse = false;
  QTimer::singleShot(0, [&] { window.close(); });
  EXPECT_EQ(desktop.Run(), 0);
  EXPECT_FALSE(frame.Loaded());
}

TEST_F(Desk, Menus_Show_Their_Items_As_They_Stand_While_The_Program_Runs) {
  Menu_Item recent(menu_file, "Menu_Recent", "");
  recent.visible = false;
  Menu_Item tick(menu_file, "Menu_Tick", "&Tick");
  tick.checkable = true;
  menu_windows.window_list = true;
  panel.caption = std::string("Panel & more");
  menu_file.on_click = [&] {
    recent.caption = std::string("&1 A.SYX");
    recent.visible = true;
    menu_new.enabled = false;
  };
  tick.on_click = [&] { Note("tick"); };
  Show_Windows();
  auto& bar = *Widget("FRAME").window()->findChild<QMenuBar*>();
  QMenu& file = *bar.actions()[0]->menu();
  EXPECT_EQ(file.actions()[0]->text(), "&New\tCtrl+N");
  EXPECT_FALSE(file.actions()[1]->isVisible());
  bar.setActiveAction(bar.actions()[0]);
  EXPECT_FALSE(file.actions()[0]->isEnabled());
  EXPECT_TRUE(file.actions()[1]->isVisible());
  EXPECT_EQ(file.actions()[1]->text(), "&1 A.SYX");
  file.actions()[2]->trigger();
  EXPECT_EQ(log, std::vector<std::string>{"tick"});
  EXPECT_FALSE(file.actions()[2]->isChecked()) << "only the program sets the mark";
  file.close();

  bar.setActiveAction(bar.actions()[1]);
  QMenu& windows = *bar.actions()[1]->menu();
  ASSERT_EQ(windows.actions().size(), 2);
  EXPECT_EQ(windows.actions()[1]->text(), "Panel && more");
  windows.close();
}

TEST_F(Desk, A_Lists_Index_Is_The_Pressed_Row_When_The_Press_Is_Told) {
  List_Box list(panel, "List");
  list.Place(10, 80, 80, 100);
  list.tab_index = 2;
  for (const char* item : {"one", "two", "three"}) list.Add_Item(item);
  list.on_got_focus = [&] { Note("focus " + std::to_string(list.index())); };
  list.on_click = [&] { Note("click " + std::to_string(list.index())); };
  list.on_mouse_down = [&](const Mouse_Event&) { Note("down " + std::to_string(list.index())); };
  list.on_double_click = [&] {
    list.Clear();
    list.Add_Item("fresh");
  };
  Show_Windows();
  auto& rows = Widget_Of<QListWidget>("List");
  const QPoint second = rows.visualItemRect(rows.item(1)).center() + QPoint(2, 2);
  Double_Click(rows, second);
  EXPECT_EQ(log, (std::vector<std::string>{"focus -1", "click 1", "down 1", "click 1"}));
  EXPECT_EQ(list.index(), -1) << "what the double click put under the pointer is not selected by it";
  EXPECT_EQ(rows.count(), 1);
}

QList<QFocusFrame*> Frames() {
  QList<QFocusFrame*> shown = Desk::Widget("PANEL").findChildren<QFocusFrame*>();
  shown.removeIf([](const QFocusFrame* frame) { return frame->isHidden(); });
  return shown;
}

TEST_F(Desk, Assistive_Programs_Find_Elements_By_Name_And_Move_Them) {
  int value = 40;
  knob.role = Role::Slider;
  knob.spoken_name = "VCF cutoff frequency";
  knob.spoken_value = [&] { return std::to_string(value) + " percent"; };
  knob.scale = {0, 99, 13, [&] { return value; }};
  knob.on_key_down = [&](Key_Event& key) {
    Note("key " + std::to_string(key.code));
    value += key.code == Key::Page_Up ? 13 : key.code == Key::Up ? 1 : -1;
  };
  Show_Windows();
  QAccessibleInterface* element = QAccessible::queryAccessibleInterface(&Widget("Knob"));
  ASSERT_NE(element, nullptr);
  EXPECT_EQ(element->text(QAccessible::Name), "VCF cutoff frequency");
  EXPECT_EQ(element->text(QAccessible::Description), "40 percent");
  EXPECT_EQ(element->role(), QAccessible::Slider);
  EXPECT_TRUE(element->state().focusable);
  EXPECT_EQ(element->rect().size(), QSize(16, 16));
  element->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
  element->actionInterface()->doAction(QAccessibleActionInterface::decreaseAction());
  element->valueInterface()->setCurrentValue(55.0);
  EXPECT_EQ(log, (std::vector<std::string>{"key 38", "key 40", "key 33", "key 38", "key 38"}));
  EXPECT_EQ(element->valueInterface()->currentValue().toInt(), 55);
  panel.enabled = false;
  element->valueInterface()->setCurrentValue(0.0);
  EXPECT_EQ(value, 55) << "a locked window";
  EXPECT_TRUE(element->state().disabled);
}

TEST_F(Desk, A_Frame_Marks_The_Focus_Where_Nothing_Blinks) {
  knob.blinks = true;
  Show_Windows();
  Set_Focus(knob);
  EXPECT_TRUE(Frames().isEmpty());
  Set_Focus(lever);
  ASSERT_EQ(Frames().size(), 1);
  EXPECT_TRUE(Frames()[0]->geometry().contains(Widget("Lever").geometry()));
  Set_Focus(knob);
  EXPECT_TRUE(Frames().isEmpty());
}

}  // namespace
