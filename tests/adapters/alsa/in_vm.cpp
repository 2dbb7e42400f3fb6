// The ALSA backend against the kernel's sequencer, as root in a virtual machine (run_in_vm.sh).
#include <gtest/gtest.h>

#include <fstream>
#include <memory>

#include "adapters/alsa/alsa_backend.h"
#include "adapters/midi/service.h"
#include "listener.h"
#include "raw_midi.h"
#include "support/midi_contract.h"
#include "support/recording_service.h"

namespace {

constexpr const char* Synth_Name = "Test Synth MIDI 1";
constexpr const char* Virtual_Name = "Virtual Raw MIDI 0-0 VirMIDI 0-";  // cut to 31 characters

struct Alsa_Rig : Midi_Rig {
  Alsa::Alsa_Backend backend;
  Midi::Service service{{&backend}};

  Midi_Service& Service() override { return service; }
};

struct Software_Rig final : Alsa_Rig {
  Listener listener;
  Software_Rig() { service.Refresh(); }

  std::string Device_Name() override { return "Listener in"; }
  Byte_String Received(std::size_t count) override {
    Byte_String bytes;
    Await([&] {
      bytes += listener.Take();
      return bytes.size() >= count;
    });
    return bytes;
  }
  void Unplug() override {
    listener.Delete_Port();
    MIDI_Header header;
    EXPECT_EQ(service.Out_Prepare(1, header), Midi_Ok);
    EXPECT_TRUE(Await([&] { return service.Out_Long(1, header) != Midi_Ok; }));
  }
};

struct Raw_Rig : Alsa_Rig {
  Raw_Rig(const std::string& device, std::string name) : name_(std::move(name)), device_(device) {
    Plug_Raw();
  }
  std::unique_ptr<Raw_Midi> raw;

  void Plug_Raw() { raw = std::make_unique<Raw_Midi>(device_); }

  std::string Device_Name() override { return name_; }
  Byte_String Received(std::size_t count) override {
    Byte_String bytes;
    Await([&] {
      bytes += raw->Read();
      return bytes.size() >= count;
    });
    return bytes;
  }

 private:
  std::string name_;
  std::string device_;
};

const Rig_Maker Over_Software{"Software_Client", [] { return std::make_unique<Software_Rig>(); }};
const Rig_Maker Over_Virtual{"Virtual_Raw_Midi",
                             [] { return std::make_unique<Raw_Rig>("hw:VirMIDI,0", Virtual_Name); }};
MIDI_RIGS(Midi_Contract, Over_Software, Over_Virtual);
MIDI_RIGS(Midi_Unplug_Contract, Over_Software);

Byte_String Dump(int number) {
  Byte_String bytes = Bytes_Of("F0 41 35 00 21 20 01");
  for (int i = 0; i < 59; ++i) bytes += static_cast<char>((i + number) % 128);
  return bytes + Bytes_Of("24 07 F0 41 36 00 21 30 01 00 01 01 02 02 03 03 04 04 05 05 06 06 40 F7");
}

// The interface "Test Synth", opened, with the instrument's end of its cable.
struct Usb_Test : testing::Test {
  void SetUp() override {
    ASSERT_TRUE(Await([this] {
      rig.service.Refresh();
      return Find_Output(rig.service, Synth_Name) >= 0;
    }));
    ASSERT_TRUE(rig.raw->Is_Open());
    ASSERT_EQ(rig.service.Out_Open(handle, Find_Output(rig.service, Synth_Name)), Midi_Ok);
  }
  void TearDown() override {
    int code = Midi_Still_Playing;
    Await([&] { return (code = rig.service.Out_Close(handle)) != Midi_Still_Playing; });
    EXPECT_EQ(code, Midi_Ok);
  }
  int Long(const Byte_String& bytes) {
    MIDI_Header header;
    header.data = bytes;
    header.buffer_length = static_cast<std::uint32_t>(bytes.size());
    EXPECT_EQ(rig.service.Out_Prepare(handle, header), Midi_Ok);
    return rig.service.Out_Long(handle, header);
  }
  void Plug(bool in) {
    std::ofstream udc("/config/usb_gadget/synth/UDC");
    udc << (in ? "dummy_udc.0" : "") << std::endl;
    ASSERT_TRUE(udc.good());
  }

  Raw_Rig rig{"hw:fmidi,0", Synth_Name};
  std::int32_t handle = -1;
};

TEST_F(Usb_Test, Hardware_Stands_First_In_The_List_And_Is_Paced) {
  const std::vector<Midi::Port> ports = rig.backend.Ports(Midi::Direction::Output);
  ASSERT_GE(ports.size(), 4U);
  EXPECT_TRUE(ports.front().wire);
  EXPECT_FALSE(ports.back().wire);
  for (const Midi::Port& port : ports) {
    const bool software = port.name.starts_with("Virtual Raw MIDI") || port.name.starts_with("Midi Through");
    if (port.name == Synth_Name || software) {
      EXPECT_EQ(port.wire, !software) << port.name;
    }
  }
}

// The cable's packets hold three bytes of a message. Where a status byte ends a message without F7, the
// kernel's driver drops the one or two bytes that do not fill one: of our messages, only bytes that mean
// nothing to the instrument.
Byte_String Dump_Over_Usb(int number) { return Dump(number).erase(66, 2); }

TEST_F(Usb_Test, Messages_Arrive_Byte_For_Byte) {
  const Byte_String tone = Dump(7).substr(0, 66) + "\xF7";
  const Byte_String name =
      Bytes_Of("F0 41 36 00 21 20 01 00 54 01 45 02 53 03 54 04 20 05 20 06 20 07 20 08 20 09 20");
  const Byte_String want = tone + Dump_Over_Usb(1) + name + Dump_Over_Usb(2) + Bytes_Of("90 3C 7F B0 7B 00");
  for (const Byte_String& message : {tone, Dump(1), name + "\x0F", Dump(2)})
    EXPECT_EQ(Long(message), Midi_Ok);
  EXPECT_EQ(rig.service.Out_Short(handle, 0x7F3C90), Midi_Ok);
  EXPECT_EQ(rig.service.Out_Short(handle, 0x007BB0), Midi_Ok);
  EXPECT_EQ(Hex_Text(rig.Received(want.size())), Hex_Text(want));
}

TEST_F(Usb_Test, Three_Hundred_Dumps_Arrive_Whole) {
  Byte_String want;
  Byte_String got;
  int refused = 0;
  for (int i = 0; i < 300; ++i) {
    want += Dump_Over_Usb(i);
    int code = Midi_Not_Ready;
    ASSERT_TRUE(Await([&] {
      code = Long(Dump(i));
      if (code == Midi_Not_Ready) ++refused;
      got += rig.raw->Read();
      return code != Midi_Not_Ready;
    }));
    ASSERT_EQ(code, Midi_Ok);
  }
  EXPECT_GT(refused, 0) << "the wire is slower than the hand";
  got += rig.Received(want.size() - got.size());
  EXPECT_TRUE(got == want) << "of " << want.size() << " bytes " << got.size() << " came";
}

TEST_F(Usb_Test, Unplugged_It_Is_Told_And_Plugged_In_Found_Again) {
  EXPECT_EQ(Long(Dump(1)), Midi_Ok);
  Plug(false);
  int code = Midi_Ok;
  EXPECT_TRUE(Await([&] { return (code = rig.service.Out_Short(handle, 0x403C90)) != Midi_Ok; }));
  EXPECT_EQ(code, Midi_No_Device);
  EXPECT_FALSE(rig.service.Error_Text(code).empty());
  EXPECT_EQ(rig.service.Out_Close(handle), Midi_Ok);
  EXPECT_TRUE(Await([&] {
    rig.service.Refresh();
    return Find_Output(rig.service, Synth_Name) < 0;
  }));
  Plug(true);
  rig.Plug_Raw();
  ASSERT_TRUE(rig.raw->Is_Open());
  EXPECT_TRUE(Await([&] {
    rig.service.Refresh();
    return Find_Output(rig.service, Synth_Name) >= 0;
  }));
  ASSERT_EQ(rig.service.Out_Open(handle, Find_Output(rig.service, Synth_Name)), Midi_Ok);
  EXPECT_EQ(Long(Dump(2)), Midi_Ok);
  EXPECT_EQ(Hex_Text(rig.Received(88)), Hex_Text(Dump_Over_Usb(2)));
}

struct Input_Test : testing::Test {
  void Expect(Test_Input& input, const std::vector<Byte_String>& want) {
    EXPECT_TRUE(desktop.Run_Until([&] { return input.received.size() >= want.size(); }));
    EXPECT_EQ(input.received, want);
  }
  Post_Desktop desktop;
};

// The kernel hands a long message over in pieces of 256 bytes.
TEST_F(Input_Test, Messages_From_A_Raw_Port_Come_Whole) {
  Raw_Rig rig("hw:VirMIDI,0", Virtual_Name);
  Test_Input input(rig.service, Find_Input(rig.service, Virtual_Name));
  const Byte_String dump = Dump(0).substr(0, 66) + "\xF7";
  const Byte_String large = "\xF0" + Byte_String(1000, '\x22') + "\xF7";
  rig.raw->Write(dump + large + Bytes_Of("90 3C 40"));
  rig.raw->Write(dump.substr(0, 30));
  rig.raw->Write("\xFE");
  rig.raw->Write(dump.substr(30));
  rig.raw->Write(Bytes_Of("F0 41 35 90 3C 40"));
  rig.raw->Write(large);
  Expect(input, {dump, large, dump, large});
}

TEST_F(Input_Test, Messages_That_A_Client_Splits_Come_Whole) {
  Software_Rig rig;
  Test_Input input(rig.service, Find_Input(rig.service, "Listener in"));
  const Byte_String dump = Dump(0).substr(0, 66) + "\xF7";
  rig.listener.Send({dump, dump.substr(0, 1), dump.substr(1, 40), dump.substr(41)});
  Expect(input, {dump, dump});
}

// The kernel has 200 cells for a client that does not read, and empties them all when one more comes.
TEST(Software, What_A_Slow_Client_Does_Not_Read_Yet_Waits_For_It) {
  Software_Rig rig;
  rig.listener.Sleep(true);
  std::int32_t handle = -1;
  ASSERT_EQ(rig.service.Out_Open(handle, Find_Output(rig.service, "Listener in")), Midi_Ok);
  const auto send = [&](int number) {
    MIDI_Header header;
    header.data = Dump(number);
    header.buffer_length = 90;
    EXPECT_EQ(rig.service.Out_Prepare(handle, header), Midi_Ok);
    return rig.service.Out_Long(handle, header);
  };
  Byte_String want;
  constexpr int Room = 200 / 5;  // a dump takes five cells
  for (int i = 0; i < Room; ++i) {
    ASSERT_TRUE(Await([&] { return send(i) == Midi_Ok; }));
    want += Dump(i);
  }
  int number = Room;
  for (; send(number) == Midi_Ok && number < 1000; ++number) want += Dump(number);
  EXPECT_LT(number, 2 * Room);
  EXPECT_EQ(rig.service.Out_Close(handle), Midi_Still_Playing);
  rig.listener.Sleep(false);
  EXPECT_EQ(Hex_Text(rig.Received(want.size())), Hex_Text(want));
}

}  // namespace
