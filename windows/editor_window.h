// The Editor: the tone panel, 528 x 456 pixels, open for the whole run.
// Plain data; places, pictures and rules come from panel/.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/timer.h"

constexpr int Editor_Width_px = 528;
constexpr int Editor_Height_px = 456;

struct Editor_Window final : Form {
  Editor_Window();

  Picture_Box Back_Pic{*this, "Back_Pic"};  // the background, on which everything lies

  Picture_Box DCO1_Range{Back_Pic, "DCO1_Range"};
  Picture_Box DCO1_Waveform{Back_Pic, "DCO1_Waveform"};
  Picture_Box DCO1_Tune{Back_Pic, "DCO1_Tune"};
  Picture_Box DCO1_Tune_Knopf{DCO1_Tune, "DCO1_Tune_Knopf"};
  Picture_Box DCO1_LFO{Back_Pic, "DCO1_LFO"};
  Picture_Box DCO1_ENV{Back_Pic, "DCO1_ENV"};
  Picture_Box DCO2_Range{Back_Pic, "DCO2_Range"};
  Picture_Box DCO2_Waveform{Back_Pic, "DCO2_Waveform"};
  Picture_Box DCO2_Crossmod{Back_Pic, "DCO2_Crossmod"};
  Picture_Box DCO2_Tune{Back_Pic, "DCO2_Tune"};
  Picture_Box DCO2_Tune_Knopf{DCO2_Tune, "DCO2_Tune_Knopf"};
  Picture_Box DCO2_FTune{Back_Pic, "DCO2_FTune"};
  Picture_Box DCO2_FTune_Knopf{DCO2_FTune, "DCO2_FTune_Knopf"};
  Picture_Box DCO2_LFO{Back_Pic, "DCO2_LFO"};
  Picture_Box DCO2_ENV{Back_Pic, "DCO2_ENV"};
  Picture_Box DCO_Dynamics{Back_Pic, "DCO_Dynamics"};
  Picture_Box DCO_Mode{Back_Pic, "DCO_Mode"};
  Picture_Box Mixer_DCO1{Back_Pic, "Mixer_DCO1"};
  Picture_Box Mixer_DCO2{Back_Pic, "Mixer_DCO2"};
  Picture_Box Mixer_ENV{Back_Pic, "Mixer_ENV"};
  Picture_Box Mixer_Dynamics{Back_Pic, "Mixer_Dynamics"};
  Picture_Box Mixer_Mode{Back_Pic, "Mixer_Mode"};
  Picture_Box VCF_HPF{Back_Pic, "VCF_HPF"};
  Picture_Box VCF_CutoffF{Back_Pic, "VCF_CutoffF"};
  Picture_Box VCF_Res{Back_Pic, "VCF_Res"};
  Picture_Box VCF_LFO{Back_Pic, "VCF_LFO"};
  Picture_Box VCF_ENV{Back_Pic, "VCF_ENV"};
  Picture_Box VCF_Keyfollow{Back_Pic, "VCF_Keyfollow"};
  Picture_Box VCF_Dynamics{Back_Pic, "VCF_Dynamics"};
  Picture_Box VCF_Mode{Back_Pic, "VCF_Mode"};
  Picture_Box VCA_Level{Back_Pic, "VCA_Level"};
  Picture_Box VCA_Mode{Back_Pic, "VCA_Mode"};
  Picture_Box VCA_Dynamics{Back_Pic, "VCA_Dynamics"};
  Picture_Box Chorus_Mode{Back_Pic, "Chorus_Mode"};
  Picture_Box LFO_Waveform{Back_Pic, "LFO_Waveform"};
  Picture_Box LFO_DelayT{Back_Pic, "LFO_DelayT"};
  Picture_Box LFO_Rate{Back_Pic, "LFO_Rate"};
  Picture_Box ENV1_Attack{Back_Pic, "ENV1_Attack"};
  Picture_Box ENV1_Decay{Back_Pic, "ENV1_Decay"};
  Picture_Box ENV1_Sustain{Back_Pic, "ENV1_Sustain"};
  Picture_Box ENV1_Release{Back_Pic, "ENV1_Release"};
  Picture_Box ENV1_Keyfollow{Back_Pic, "ENV1_Keyfollow"};
  Picture_Box ENV2_Attack{Back_Pic, "ENV2_Attack"};
  Picture_Box ENV2_Decay{Back_Pic, "ENV2_Decay"};
  Picture_Box ENV2_Sustain{Back_Pic, "ENV2_Sustain"};
  Picture_Box ENV2_Release{Back_Pic, "ENV2_Release"};
  Picture_Box ENV2_Keyfollow{Back_Pic, "ENV2_Keyfollow"};

  Picture_Box Pic_MELVOR{Back_Pic, "Pic_MELVOR"};
  Picture_Box Pic_Badge{Back_Pic, "Pic_Badge"};
  Picture_Box ED_Seq_Start{Back_Pic, "ED_Seq_Start"};
  Picture_Box ED_Seq_Start_Pic{ED_Seq_Start, "ED_Seq_Start_Pic"};
  Picture_Box ED_Seq_Stop{Back_Pic, "ED_Seq_Stop"};
  Picture_Box ED_Seq_Stop_Pic{ED_Seq_Stop, "ED_Seq_Stop_Pic"};
  Picture_Box Keys_Pic{Back_Pic, "Keys_Pic"};
  Text_Box Tone_Name{Back_Pic, "Tone_Name"};  // the display: tone name, or a value for a second

  Timer Timer1{*this, "Timer1", 250, true};  // blink of the selected element
};

extern Editor_Window Editor;
