// Playback of the oscillator's curve: walks its 18 steps on Timer_Osc, in a loop, and sends each step's value
// to the target. The tone record and the panel do not move. Called by the handlers of the oscillator's
// window.
#pragma once

extern int Osc_Step;   // the step played next, [0, 17]
extern int Osc_Param;  // what is driven: an index in Tone, or a code of targets.h

// Plays the first step at once, the others on the timer.
void Osc_Start();
// Ends the sweep. The instrument stays on the last value; notes go on sounding.
void Osc_Stop();

// Plays one step, then lets pending events run. The next step is chosen before that, so that a tick inside it
// plays on.
void Osc_Tick();

// Sends one value, [0, 127], to the target, if Autosend and MIDI_Enabled are 1. Not for notes.
void Osc_Send(int value);
