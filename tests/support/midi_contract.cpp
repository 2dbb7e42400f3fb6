#include "midi_contract.h"

#include <chrono>
#include <thread>
#include <utility>

#include "recording_service.h"

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Midi_Contract);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Midi_Hold_Contract);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Midi_Unplug_Contract);

namespace {

constexpr std::chrono::seconds Patience(20);
constexpr std::chrono::milliseconds Look_Again(1);
constexpr std::uint32_t Note = 0x403C90;

// Ten bytes with a number in them.
Byte_String Numbered(int number) {
  Byte_String bytes = Bytes_Of("F0 41 36 00 21 20 01 00 00 F7");
  bytes[7] = static_cast<char>(number / 128);
  bytes[8] = static_cast<char>(number % 128);
  return bytes;
}

}  // namespace

Byte_String Dump_Message(int number) {
  Byte_String bytes = Bytes_Of("F0 41 35 00 21 20 01");
  for (int i = 0; i < 59; ++i) bytes += static_cast<char>((i + number) % 128);
  return bytes + Bytes_Of("24 07 F0 41 36 00 21 30 01 00 01 01 02 02 03 03 04 04 05 05 06 06 40 F7");
}

Byte_String Name_Message() {
  return Bytes_Of("F0 41 36 00 21 20 01 00 54 01 45 02 53 03 54 04 20 05 20 06 20 07 20 08 20 09 20 0F");
}

bool Await(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + Patience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(Look_Again);
  }
  return true;
}

int Find_Output(Midi_Service& service, const std::string& name) {
  MIDI_Out_Caps caps;
  int device = service.Out_Count() - 1;
  while (device >= 0 && (service.Out_Caps(device, caps) != Midi_Ok || name != caps.name.data())) --device;
  return device;
}

int Find_Input(Midi_Service& service, const std::string& name) {
  MIDI_In_Caps caps;
  int device = service.In_Count() - 1;
  while (device >= 0 && (service.In_Caps(device, caps) != Midi_Ok || name != caps.name.data())) --device;
  return device;
}

int Send_Long(Midi_Service& service, std::int32_t handle, const Byte_String& bytes) {
  MIDI_Header header;
  header.data = bytes;
  header.buffer_length = static_cast<std::uint32_t>(bytes.size());
  EXPECT_EQ(service.Out_Prepare(handle, header), Midi_Ok);
  const int code = service.Out_Long(handle, header);
  EXPECT_EQ(service.Out_Unprepare(handle, header), Midi_Ok);
  return code;
}

int Close_Output(Midi_Service& service, std::int32_t handle) {
  int code = Midi_Still_Playing;
  Await([&] { return (code = service.Out_Close(handle)) != Midi_Still_Playing; });
  return code;
}

void Midi_Rig_Test::SetUp() {
  rig = GetParam().make();
  const int device = Find_Output(rig->Service(), rig->Device_Name());
  ASSERT_EQ(rig->Service().Out_Open(handle, device), Midi_Ok) << rig->Device_Name();
}

void Midi_Rig_Test::TearDown() {
  rig->Release();
  if (handle > 0) Close();
}

int Midi_Rig_Test::Long(const Byte_String& bytes) { return Send_Long(rig->Service(), handle, bytes); }

void Midi_Rig_Test::Send(const Byte_String& bytes) {
  int code = Midi_Not_Ready;
  EXPECT_TRUE(Await([&] { return (code = Long(bytes)) != Midi_Not_Ready; }));
  EXPECT_EQ(code, Midi_Ok);
}

void Midi_Rig_Test::Close() {
  EXPECT_EQ(Close_Output(rig->Service(), handle), Midi_Ok);
  handle = -1;
}

void Midi_Rig_Test::Expect(const Byte_String& bytes) {
  EXPECT_EQ(Hex_Text(rig->Received(bytes.size())), Hex_Text(bytes));
}

TEST_P(Midi_Contract, Odd_Messages_Arrive_Byte_For_Byte) {
  const Byte_String large = "\xF0" + Byte_String(1500, '\x11') + "\xF7";
  Send(Dump_Message(0));
  EXPECT_EQ(Long(Name_Message()), Midi_Ok);
  EXPECT_EQ(Long({}), Midi_Ok);
  EXPECT_EQ(Short(0x7F3C00), Midi_Ok) << "no status byte: goes nowhere";
  EXPECT_EQ(Short(0x7F3C7F), Midi_Ok);
  EXPECT_EQ(Short(0x7F3C9F), Midi_Ok);
  EXPECT_EQ(Short(0x6305C2), Midi_Ok) << "two bytes by its status";
  EXPECT_EQ(Long(Bytes_Of("41")), Midi_Ok) << "a lone data byte";
  Send(large);
  Expect(Dump_Message(0) + Name_Message() + Bytes_Of("9F 3C 7F C2 05 41") + large);
}

TEST_P(Midi_Contract, Messages_Keep_Their_Order_And_A_Close_Delivers_Them) {
  Byte_String want;
  for (int i = 0; i < 200; ++i) {
    Send(Numbered(i));
    EXPECT_EQ(Short(0x010090U + static_cast<unsigned>(i % 128) * 256), Midi_Ok);
    want += Numbered(i) + Byte_String{'\x90', static_cast<char>(i % 128), '\x01'};
  }
  Close();
  Expect(want);
}

// Long messages are taken while fewer than 1,024 bytes wait, short ones while fewer than 4,096 do.
TEST_P(Midi_Hold_Contract, A_Full_Output_Answers_67_Its_Close_65_And_Nothing_Is_Lost) {
  Send(Numbered(0));
  Expect(Numbered(0));
  rig->Hold();
  Byte_String want;
  int taken = 0;
  for (; Long(Numbered(taken)) == Midi_Ok && taken < 10'000; ++taken) want += Numbered(taken);
  EXPECT_EQ(taken, 103);
  for (taken = 0; Short(Note) == Midi_Ok && taken < 10'000; ++taken) want += Bytes_Of("90 3C 40");
  EXPECT_EQ(taken, 1022);
  EXPECT_EQ(Short(Note), Midi_Not_Ready);
  EXPECT_EQ(rig->Service().Out_Close(handle), Midi_Still_Playing);
  rig->Release();
  Expect(want);
  Send(Numbered(1));  // it is still open
  Expect(Numbered(1));
}

TEST_P(Midi_Unplug_Contract, A_Port_That_Goes_Is_Told_By_Code) {
  Send(Numbered(0));
  Expect(Numbered(0));
  Send(Dump_Message(0));
  rig->Unplug();
  EXPECT_EQ(Long(Numbered(1)), Midi_No_Device);
  EXPECT_EQ(Short(Note), Midi_No_Device);
  Close();
  rig->Service().Refresh();
  EXPECT_EQ(Find_Output(rig->Service(), rig->Device_Name()), -1);
}

void Post_Desktop::Post(std::function<void()> fn) {
  const std::lock_guard lock(mutex_);
  posts_.push_back(std::move(fn));
  changed_.notify_all();
}

bool Post_Desktop::Run_Until(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + Patience;
  std::unique_lock lock(mutex_);
  while (!condition()) {
    if (!changed_.wait_until(lock, end, [this] { return !posts_.empty(); })) return false;
    const std::function<void()> post = std::move(posts_.front());
    posts_.pop_front();
    lock.unlock();
    post();
    lock.lock();
  }
  return true;
}

void Post_Desktop::Run_Posts() {
  bool ran = false;
  Post([&ran] { ran = true; });
  EXPECT_TRUE(Run_Until([&ran] { return ran; }));
}

Test_Input::Test_Input(Midi_Service& service, int device) : service_(service) {
  const auto receive = [this](MIDI_Header& header) {
    received.push_back(header.data);
    EXPECT_EQ(service_.In_Add_Buffer(handle, header), Midi_Ok);
  };
  EXPECT_EQ(service_.In_Open(handle, device, receive), Midi_Ok);
  for (MIDI_Header& header : headers_) {
    header.buffer_length = 10'000;
    EXPECT_EQ(service_.In_Prepare(handle, header), Midi_Ok);
    EXPECT_EQ(service_.In_Add_Buffer(handle, header), Midi_Ok);
  }
  EXPECT_EQ(service_.In_Start(handle), Midi_Ok);
}
