// The focus mark: which panel element is selected, and its blink.
// Called by the element rules, by windows that open and close, and by Timer1 of the Editor.
#pragma once

#include "platform/controls.h"

// The selected element; for a knob always its dot. nullptr for none. Written by Ctl_Select.
extern Picture_Box* Active_Ctl;
// Active_Ctl at the moment of Dlg_Enter.
extern Picture_Box* Saved_Ctl;
extern int Blink_Phase;   // 0 or 1
extern int Help_Context;  // help context of the selected element, taken over at each blink; 0: none
extern int Knob_Last_X;   // last mouse X of a knob drag, in drag units (panel/); put to 0 by Ctl_Deselect

// Takes over the selected element's help context and, while an element that blinks has the focus, shows the
// picture of the present phase.
void Ctl_Blink();

// Selects the element, nullptr for none. The one before rests, so that no two are ever marked.
void Ctl_Select(Picture_Box* element);

// Puts the resting picture of the selected element back; a light that is on rests lit. It stays selected, so
// that the next activation of its window carries on with it.
void Ctl_Deselect();

// Fills the focus slots of an element: with the focus, mark becomes the selected one (the element itself, or
// the dot of a knob); its picture changes at the next blink.
void Mark_On_Focus(Picture_Box& element, Picture_Box& mark);
