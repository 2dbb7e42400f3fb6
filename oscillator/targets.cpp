#include "oscillator/targets.h"

#include <array>

namespace {

constexpr std::array Rows{
    Osc_Target{"DCO1 LFO Mod Depth", 14},
    Osc_Target{"DCO1 ENV Mod Depth", 15},
    Osc_Target{"DCO2 Fine Tune", 20},
    Osc_Target{"DCO2 LFO Mod Depth", 21},
    Osc_Target{"DCO2 ENV Mod Depth", 22},
    Osc_Target{"ENV1 Attack Time", 47},
    Osc_Target{"ENV1 Decay Time", 48},
    Osc_Target{"ENV1 Sustain Level", 49},
    Osc_Target{"ENV1 Release Time", 50},
    Osc_Target{"ENV2 Attack Time", 52},
    Osc_Target{"ENV2 Decay Time", 53},
    Osc_Target{"ENV2 Sustain Level", 54},
    Osc_Target{"ENV2 Release Time", 55},
    Osc_Target{"LFO Rate", 46},
    Osc_Target{"Mixer DCO1", 28},
    Osc_Target{"Mixer DCO2", 29},
    Osc_Target{"Mixer ENV Mod Depth", 30},
    Osc_Target{"VCF Cutoff", 34},
    Osc_Target{"VCF Resonance", 35},
    Osc_Target{"VCF LFO Mod Depth", 36},
    Osc_Target{"VCF ENV Mod Depth", 37},
    Osc_Target{"VCF Key Follow", 38},
    Osc_Target{"VCA Level", 41},
    Osc_Target{"Mixer DCO1 <-> DCO2", Osc_Drives_Mixer},
    Osc_Target{"Portamento Time", Osc_Drives_Portamento},
    Osc_Target{"Bend LFO Depth", Osc_Drives_Bend_LFO},
    Osc_Target{"MIDI notes", Osc_Drives_Notes},
};

}  // namespace

std::span<const Osc_Target> Osc_Targets() { return Rows; }
