#include "panel/editor_tables.h"

#include "core/records.h"

namespace {

using E = Editor_Window;

// clang-format off
constexpr std::array Sliders{
    Slider_Row{&E::DCO1_LFO,      {14, 152, 232},  19,  3, 4, "DCO 1 LFO depth"},
    Slider_Row{&E::DCO1_ENV,      {15, 152, 232},  58,  4, 0, "DCO 1 envelope depth"},
    Slider_Row{&E::DCO2_LFO,      {21, 152, 232}, 119, 12, 4, "DCO 2 LFO depth"},
    Slider_Row{&E::DCO2_ENV,      {22, 152, 232}, 158, 13, 0, "DCO 2 envelope depth"},
    Slider_Row{&E::Mixer_DCO1,    {28,  32, 112}, 259, 16, 0, "Mixer DCO 1 level"},
    Slider_Row{&E::Mixer_DCO2,    {29,  32, 112}, 298, 17, 0, "Mixer DCO 2 level"},
    Slider_Row{&E::Mixer_ENV,     {30, 152, 232}, 299, 18, 0, "Mixer envelope depth"},
    Slider_Row{&E::VCF_CutoffF,   {34,  32, 112}, 399, 22, 0, "VCF cutoff frequency"},
    Slider_Row{&E::VCF_Res,       {35,  32, 112}, 438, 23, 0, "VCF resonance"},
    Slider_Row{&E::VCF_LFO,       {36, 152, 232}, 360, 24, 4, "VCF LFO depth"},
    Slider_Row{&E::VCF_ENV,       {37, 152, 232}, 399, 25, 0, "VCF envelope depth"},
    Slider_Row{&E::VCF_Keyfollow, {38, 152, 232}, 438, 26, 0, "VCF key follow"},
    Slider_Row{&E::VCA_Level,     {41,  32, 112}, 489, 29, 0, "VCA level"},
    Slider_Row{&E::LFO_DelayT,    {45, 357, 437},  45, 33, 0, "LFO delay time"},
    Slider_Row{&E::LFO_Rate,      {46, 357, 437},  84, 34, 0, "LFO rate"},
    Slider_Row{&E::ENV1_Attack,   {47, 357, 437}, 135, 35, 0, "Envelope 1 attack time"},
    Slider_Row{&E::ENV1_Decay,    {48, 357, 437}, 165, 36, 0, "Envelope 1 decay time"},
    Slider_Row{&E::ENV1_Sustain,  {49, 357, 437}, 195, 37, 0, "Envelope 1 sustain level"},
    Slider_Row{&E::ENV1_Release,  {50, 357, 437}, 225, 38, 0, "Envelope 1 release time"},
    Slider_Row{&E::ENV2_Attack,   {52, 357, 437}, 315, 40, 0, "Envelope 2 attack time"},
    Slider_Row{&E::ENV2_Decay,    {53, 357, 437}, 345, 41, 0, "Envelope 2 decay time"},
    Slider_Row{&E::ENV2_Sustain,  {54, 357, 437}, 375, 42, 0, "Envelope 2 sustain level"},
    Slider_Row{&E::ENV2_Release,  {55, 357, 437}, 405, 43, 0, "Envelope 2 release time"},
};

using Positions = std::array<std::string_view, 4>;
constexpr Positions Ranges{"16 feet", "8 feet", "4 feet", "2 feet"};
constexpr Positions Waveforms{"noise", "square", "pulse", "sawtooth"};
constexpr Positions Crossmods{"off", "sync 1", "sync 2", "cross modulation"};
constexpr Positions Off_1_2_3{"off", "1", "2", "3"};
constexpr Positions Envelope_Modes{"envelope 2 inverted", "envelope 2", "envelope 1 inverted", "envelope 1"};
constexpr Positions Filters{"0", "1", "2", "3"};
constexpr Positions Choruses{"off", "1", "2", ""};
constexpr Positions LFO_Waves{"random", "square", "triangle", ""};
constexpr Positions VCA_Modes{"gate", "envelope 2", "", ""};

constexpr std::array Switches{
    Switch_Row{&E::DCO1_Range,     {11,  32,  62}, "bl",  19, Bands::Quarters,  0, 1, "DCO 1 range", Ranges},
    Switch_Row{&E::DCO1_Waveform,  {12,  32,  62}, "bl",  59, Bands::Quarters,  1, 2, "DCO 1 waveform", Waveforms},
    Switch_Row{&E::DCO2_Range,     {16,  32,  62}, "bl", 119, Bands::Quarters,  5, 1, "DCO 2 range", Ranges},
    Switch_Row{&E::DCO2_Waveform,  {17,  32,  62}, "bl", 159, Bands::Quarters,  6, 2, "DCO 2 waveform", Waveforms},
    Switch_Row{&E::DCO2_Crossmod,  {18,  32,  62}, "br", 189, Bands::Quarters,  7, 0, "DCO 2 cross modulation", Crossmods},
    Switch_Row{&E::DCO_Dynamics,   {26, 278, 308}, "bl",  19, Bands::Quarters, 14, 0, "DCO dynamics", Off_1_2_3},
    Switch_Row{&E::DCO_Mode,       {27, 278, 308}, "bl",  59, Bands::Quarters, 15, 0, "DCO envelope mode", Envelope_Modes},
    Switch_Row{&E::Mixer_Dynamics, {31, 278, 308}, "bl", 259, Bands::Quarters, 19, 0, "Mixer dynamics", Off_1_2_3},
    Switch_Row{&E::Mixer_Mode,     {32, 278, 308}, "bl", 299, Bands::Quarters, 20, 0, "Mixer envelope mode", Envelope_Modes},
    Switch_Row{&E::VCF_HPF,        {33,  32,  62}, "bl", 359, Bands::Quarters, 21, 0, "High pass filter", Filters},
    Switch_Row{&E::VCF_Dynamics,   {39, 278, 308}, "bl", 359, Bands::Quarters, 27, 0, "VCF dynamics", Off_1_2_3},
    Switch_Row{&E::VCF_Mode,       {40, 278, 308}, "bl", 399, Bands::Quarters, 28, 0, "VCF envelope mode", Envelope_Modes},
    Switch_Row{&E::VCA_Dynamics,   {42, 278, 308}, "bl", 489, Bands::Quarters, 31, 0, "VCA dynamics", Off_1_2_3},
    Switch_Row{&E::Chorus_Mode,    {43, 398, 418}, "br", 488, Bands::Thirds,   45, 0, "Chorus", Choruses},
    Switch_Row{&E::LFO_Waveform,   {44, 377, 397}, "bl",  18, Bands::Thirds,   32, 0, "LFO waveform", LFO_Waves},
    Switch_Row{&E::ENV1_Keyfollow, {51, 388, 418}, "br", 265, Bands::Quarters, 39, 0, "Envelope 1 key follow", Off_1_2_3},
    Switch_Row{&E::ENV2_Keyfollow, {56, 388, 418}, "br", 445, Bands::Quarters, 44, 0, "Envelope 2 key follow", Off_1_2_3},
    Switch_Row{&E::VCA_Mode,       {Index_VCA_Mode, 152, 162}, "br", 489, Bands::Halves, 30, 0, "VCA mode", VCA_Modes},
};

constexpr std::array Knobs{
    Knob_Row{&E::DCO1_Tune, &E::DCO1_Tune_Knopf, "kn1", Index_DCO1_Tune, 32, 102, Tune_Circle, 2, 53, 3, "DCO 1 tune"},
    Knob_Row{&E::DCO2_Tune, &E::DCO2_Tune_Knopf, "kn2", Index_DCO2_Tune, 122, 102, Tune_Circle, 8, 9, 3, "DCO 2 tune"},
    Knob_Row{&E::DCO2_FTune, &E::DCO2_FTune_Knopf, "kn2f", Index_DCO2_FTune, 182, 102, Fine_Circle, 10, 11, 0, "DCO 2 fine tune"},
};
// clang-format on

}  // namespace

std::span<const Slider_Row> Editor_Sliders() { return Sliders; }
std::span<const Switch_Row> Editor_Switches() { return Switches; }
std::span<const Knob_Row> Editor_Knobs() { return Knobs; }
