// The ALSA backend against the kernel's sequencer, as root in a virtual machine (run_in_vm.sh).
#include <alsa/asoundlib.h>
#include <fcntl.h>
#include <unistd.h>
#include <fstream>
#include <optional>

#include "adapters/alsa/alsa_backend.h"
#include "adapters/midi/service.h"
#include "support/midi_contract.h"

namespace {

constexpr const char* Synth_Name = "Test Synth MIDI 1";
constexpr const char* Plug = "/config/usb_gadget/synth/UDC";  // of the cable: takes what it goes into
constexpr int Usual_Cells = 200;  // that the kernel keeps for a client until it reads
constexpr int Largest_Cells = 2000;
constexpr unsigned Open_To_All = SND_SEQ_PORT_CAP_WRITE | SND_SEQ_PORT_CAP_SUBS_WRITE;

// At the other end is a software client of the sequencer, "Listener", with one port "in".
struct Software_Rig {
  Posts posts;
  Alsa::Alsa_Backend backend;
  Midi::Service service{{&backend}, posts.Poster()};

  explicit Software_Rig(int cells) {
    snd_seq_open(&listener_, "default", SND_SEQ_OPEN_INPUT, SND_SEQ_NONBLOCK);
    snd_seq_set_client_name(listener_, "Listener");
    snd_seq_set_client_pool_input(listener_, static_cast<std::size_t>(cells));
    snd_seq_create_simple_port(listener_, "in", Open_To_All, SND_SEQ_PORT_TYPE_MIDI_GENERIC);
    snd_midi_event_new(0, &decoder_);
    snd_midi_event_no_status(decoder_, 1);
    service.Refresh();
  }
  ~Software_Rig() {
    snd_midi_event_free(decoder_);
    snd_seq_close(listener_);
  }

  void Allow(unsigned capabilities) {  // what others may do with the port
    snd_seq_port_info_t* port = nullptr;
    snd_seq_port_info_alloca(&port);
    EXPECT_GE(snd_seq_get_port_info(listener_, 0, port), 0);
    snd_seq_port_info_set_capability(port, capabilities);
    EXPECT_GE(snd_seq_set_port_info(listener_, 0, port), 0);
  }
  Byte_String Received(std::size_t count) {
    Byte_String bytes;
    Await([&] { return (bytes += Read()).size() >= count; });
    return bytes;
  }

 private:
  Byte_String Read() {  // what has come, without waiting
    Byte_String bytes;
    snd_seq_event_t* event = nullptr;
    int result = 0;
    while ((result = snd_seq_event_input(listener_, &event)) >= 0) {
      unsigned char data[4096];
      const long size = snd_midi_event_decode(decoder_, data, sizeof data, event);
      // A program that plays what it gets takes notes and the like by their own types alone.
      if (size <= 0 || (event->type == SND_SEQ_EVENT_SYSEX && data[0] >= 0x80 && data[0] < 0xF0)) continue;
      bytes.append(reinterpret_cast<const char*>(data), static_cast<std::size_t>(size));
    }
    EXPECT_EQ(result, -EAGAIN) << "events were lost";
    return bytes;
  }

  snd_seq_t* listener_ = nullptr;
  snd_midi_event_t* decoder_ = nullptr;
};

// The instrument's end of the cable of the interface "Test Synth", as raw MIDI.
struct Cable_End {
  Cable_End() {
    EXPECT_GE(snd_rawmidi_open(&in_, &out_, "hw:fmidi,0", 0), 0);
    snd_rawmidi_params_t* params = nullptr;
    snd_rawmidi_params_alloca(&params);
    snd_rawmidi_params_current(in_, params);
    // The default of 4,096 bytes loses what comes in a burst, which would look like the sender's fault.
    snd_rawmidi_params_set_buffer_size(in_, params, 65536);
    snd_rawmidi_params(in_, params);
    snd_rawmidi_nonblock(in_, 1);
    // Else the close sends a byte, and waits ten seconds for a cable that is out.
    snd_rawmidi_params_current(out_, params);
    snd_rawmidi_params_set_no_active_sensing(out_, params, 1);
    snd_rawmidi_params(out_, params);
    char byte = 0;
    snd_rawmidi_read(in_, &byte, 0);  // starts the input
  }
  ~Cable_End() {
    snd_rawmidi_close(in_);
    snd_rawmidi_close(out_);
  }
  Cable_End(const Cable_End&) = delete;
  Cable_End& operator=(const Cable_End&) = delete;

  Byte_String Received(std::size_t count) {
    Byte_String bytes;
    char byte = 0;
    Await([&] {
      while (snd_rawmidi_read(in_, &byte, 1) == 1) bytes += byte;
      return bytes.size() >= count;
    });
    return bytes;
  }
  void Write(const Byte_String& bytes) {
    snd_rawmidi_write(out_, bytes.data(), bytes.size());
    snd_rawmidi_drain(out_);
  }

 private:
  snd_rawmidi_t* in_ = nullptr;
  snd_rawmidi_t* out_ = nullptr;
};

struct Usb_Test : testing::Test {
  void SetUp() override {
    EXPECT_TRUE(Await([this] {
      service.Refresh();
      return (handle = Open_Output(service, Synth_Name)) > 0;
    }));
  }
  void TearDown() override { EXPECT_EQ(Close_Output(service, handle), Midi_Ok); }

  Posts posts;
  Alsa::Alsa_Backend backend;
  Midi::Service service{{&backend}, posts.Poster()};
  std::optional<Cable_End> instrument{std::in_place};
  std::int32_t handle = -1;
};

// The cable's packets hold three bytes of a message. Where a status byte ends a message without F7, the
// kernel's driver drops the one or two bytes that do not fill one: of our messages, only bytes that mean
// nothing to the instrument.
Byte_String Dump_Over_Usb(int number) { return Dump_Message(number).erase(66, 2); }

TEST_F(Usb_Test, It_Stands_First_And_Messages_Arrive_Byte_For_Byte) {
  EXPECT_TRUE(backend.Ports(Midi::Direction::Output).front().wire) << "and is paced";
  Byte_String want;
  for (int i = 0; i < 50; ++i) {
    want += Dump_Over_Usb(i);
    ASSERT_TRUE(Await([&] { return Send_Long(service, handle, Dump_Message(i)) == Midi_Ok; }));
  }
  EXPECT_EQ(service.Out_Short(handle, 0x7F3C90), Midi_Ok);
  want += Bytes_Of("90 3C 7F");
  EXPECT_EQ(Hex_Text(instrument->Received(want.size())), Hex_Text(want));
}

TEST_F(Usb_Test, Unplugged_It_Is_Told_And_Plugged_In_Found_Again) {
  std::ofstream(Plug) << std::endl;
  EXPECT_TRUE(Await([this] { return service.Out_Short(handle, 0x403C90) == Midi_No_Device; }));
  EXPECT_EQ(service.Out_Close(handle), Midi_Ok);
  EXPECT_TRUE(Await([this] {
    service.Refresh();
    return Open_Output(service, Synth_Name) < 0;
  }));
  instrument.reset();
  std::ofstream(Plug) << "dummy_udc.0" << std::endl;
  instrument.emplace();
  SetUp();
  EXPECT_EQ(Send_Long(service, handle, Dump_Message(2)), Midi_Ok);
  EXPECT_EQ(Hex_Text(instrument->Received(88)), Hex_Text(Dump_Over_Usb(2)));
}

// The kernel hands a long message over in pieces of 256 bytes.
TEST_F(Usb_Test, An_Input_Joins_What_Comes_In_Pieces) {
  Test_Input input(service, Synth_Name);
  const Byte_String dump = Dump_Message(0).substr(0, 66) + "\xF7";
  const Byte_String large = "\xF0" + Byte_String(1000, '\x22') + "\xF7";
  for (const Byte_String& bytes : {dump.substr(0, 1), dump.substr(1), large}) instrument->Write(bytes);
  EXPECT_TRUE(posts.Run_Until([&] { return input.received == Texts{dump, large}; }));
}

TEST(Software, Keeps_The_Contract) {
  Software_Rig rig(Largest_Cells);
  Expect_Contract(rig.service, "Listener in", [&](std::size_t count) { return rig.Received(count); });
}

TEST(Software, What_A_Slow_Client_Does_Not_Read_Yet_Waits_For_It) {
  Software_Rig rig(Usual_Cells);
  const std::int32_t handle = Open_Output(rig.service, "Listener in");
  Byte_String want;
  constexpr std::size_t Room = Usual_Cells / 5 * 90;  // a dump takes five cells
  const auto send = [&] { return Send_Long(rig.service, handle, Dump_Message(0)) == Midi_Ok; };
  for (; want.size() < Room; want += Dump_Message(0)) ASSERT_TRUE(Await(send));
  for (; send(); want += Dump_Message(0)) ASSERT_LT(want.size(), 2 * Room);
  EXPECT_EQ(rig.service.Out_Close(handle), Midi_Still_Playing);
  EXPECT_EQ(Hex_Text(rig.Received(want.size())), Hex_Text(want));
}

TEST(Software, An_Error_Of_One_Send_Is_Reported_And_The_Message_Tried_Again) {
  Software_Rig rig(Usual_Cells);
  const std::int32_t handle = Open_Output(rig.service, "Listener in");
  rig.Allow(0);
  ASSERT_EQ(rig.service.Out_Short(handle, 0x403C90), Midi_Ok);
  EXPECT_TRUE(Await([&] { return Send_Long(rig.service, handle, {}) == Midi_Error; }));
  rig.Allow(Open_To_All);
  Byte_String heard;
  EXPECT_TRUE(Await([&] {
    Send_Long(rig.service, handle, {});  // the one before may have come too early
    return !(heard += rig.Received(0)).empty();
  }));
  EXPECT_EQ(Hex_Text(heard), "90 3C 40");
}

// The lowest file of this process that is the sequencer's: the backend's own.
int Sequencer_File() {
  char name[64] = {};
  for (int file = 0; file < 100; ++file) {
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t size = readlink(link.c_str(), name, sizeof name);
    if (size > 0 && std::string_view(name, static_cast<std::size_t>(size)) == "/dev/snd/seq") return file;
  }
  return -1;
}

TEST(Software, A_Sequencer_That_Fails_Is_Reported_And_Opened_Anew) {
  Software_Rig rig(Usual_Cells);
  std::int32_t handle = Open_Output(rig.service, "Listener in");
  const std::int32_t other = Open_Output(rig.service, "Midi Through Port-0");
  const int nothing = open("/", O_PATH);  // knows neither reading nor writing nor waiting
  ASSERT_GE(dup2(nothing, Sequencer_File()), 0);
  close(nothing);
  EXPECT_EQ(Close_Output(rig.service, other), Midi_Ok);  // the reader looks up
  EXPECT_TRUE(Await([&] { return Send_Long(rig.service, handle, {}) == Midi_No_Device; }));
  EXPECT_EQ(Close_Output(rig.service, handle), Midi_Ok);
  rig.service.Refresh();
  handle = Open_Output(rig.service, "Listener in");
  EXPECT_EQ(rig.service.Out_Short(handle, 0x403C90), Midi_Ok);
  EXPECT_EQ(Hex_Text(rig.Received(3)), "90 3C 40");
}

}  // namespace
