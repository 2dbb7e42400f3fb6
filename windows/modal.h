// The rule by which a child window is made to hold the program modal: it locks the other windows and the
// menus while it is open, and lets a handler wait for it. Dlg_Enter and Dlg_Leave are called from the load
// and the closing of such a window, Dlg_Wait by a handler that must not go on until it is gone.
#pragma once

#include <string>
#include <string_view>

#include "platform/form.h"

extern std::string Active_Dlg;  // name of the window that holds the program modal; empty for none
extern int Dlg_Nest;            // count of such windows now open

void Dlg_Enter(Form& window, std::string_view name);
void Dlg_Leave();

// Lets everything run, the user's input too, until Active_Dlg is empty. Sleeps between events. Program_Ended
// (platform/dispatch.h) if the program was closed meanwhile: a command that asked for a save must not go on.
void Dlg_Wait();

// Disable and enable the six top-level menus.
void Menus_Disable();
void Menus_Enable();
