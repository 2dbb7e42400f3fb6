// The menu commands: what each item of the frame's menus does.
#pragma once

void Menus_Wire();

// Commands that other procedures of the frame run too.
void Menu_File_SYX_Save();
