// The focus mark: which panel element is selected, and its blink.
// Called by the element rules, by windows that open and close, and by Timer1 of the Editor.
#pragma once

#include "platform/controls.h"

// The selected element; for a knob always its dot. nullptr for none. Written by whoever selects an element.
extern Picture_Box* Active_Ctl;
// Active_Ctl at the moment of Dlg_Enter.
extern Picture_Box* Saved_Ctl;
extern int Blink_Phase;   // 0 or 1
extern int Help_Context;  // help context of the selected element, taken over at each blink; 0: none
extern int Knob_Last_X;   // last mouse X of a knob drag, in drag units (panel/); put to 0 by Ctl_Deselect

// Items, 0-based, of the Patch window's light groups that were chosen last by click or key.
extern int Key_Mode_Sel;     // [0, 5]
extern int After_Touch_Sel;  // [0, 3]

// Shows the selected element's picture of the present phase, and takes over its help context.
void Ctl_Blink();

// Puts the resting picture of the selected element back. It stays selected, so that the next activation of
// its window carries on with it.
void Ctl_Deselect();

// Fills the focus slots of an element: with the focus, mark becomes the selected one (the element itself, or
// the dot of a knob); its picture changes at the next blink.
void Mark_On_Focus(Picture_Box& element, Picture_Box& mark);
