// The ALSA backend on a machine without a sequencer. Everything else runs in the virtual machine (in_vm.cpp).
#include <gtest/gtest.h>

#include <filesystem>

#include "adapters/alsa/alsa_backend.h"
#include "adapters/midi/service.h"

TEST(Alsa, Without_A_Sequencer_The_List_Is_Empty_And_Nothing_Is_Printed) {
  if (std::filesystem::exists("/dev/snd/seq")) GTEST_SKIP() << "this machine has a sequencer";
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  Alsa::Alsa_Backend backend;
  Midi::Service service({&backend});
  service.Refresh();
  EXPECT_EQ(service.Out_Count() + service.In_Count(), 0);
  EXPECT_EQ(backend.Open_Output({"Synth", "20:0", true}), nullptr);
  EXPECT_EQ(testing::internal::GetCapturedStdout() + testing::internal::GetCapturedStderr(), "");
}
