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

// 90 bytes: a message whose first half a second F0 ends.
Byte_String Double_Message() {
  Byte_String bytes = Bytes_Of("F0 41 35 00 21 20 01");
  for (int i = 0; i < 59; ++i) bytes += static_cast<char>(127 - i);
  return bytes + Bytes_Of("24 07 F0 41 36 00 21 30 01 00 01 01 02 02 03 03 04 04 05 05 06 06 40 F7");
}

// 28 bytes: ends without F7.
Byte_String Open_Message() {
  return Bytes_Of("F0 41 36 00 21 20 01 00 54 01 45 02 53 03 54 04 20 05 20 06 20 07 20 08 20 09 20 0F");
}

std::uint32_t Packed(unsigned status, unsigned data_1, unsigned data_2) {
  return status | data_1 << 8U | data_2 << 16U;
}

// Ten bytes with a number in them.
Byte_String Numbered(int number) {
  Byte_String bytes = Bytes_Of("F0 41 36 00 21 20 01 00 00 F7");
  bytes[7] = static_cast<char>(number / 128);
  bytes[8] = static_cast<char>(number % 128);
  return bytes;
}

}  // namespace

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
  for (int device = 0; device < service.Out_Count(); ++device) {
    if (service.Out_Caps(device, caps) == Midi_Ok && name == caps.name.data()) return device;
  }
  return -1;
}

int Find_Input(Midi_Service& service, const std::string& name) {
  MIDI_In_Caps caps;
  for (int device = 0; device < service.In_Count(); ++device) {
    if (service.In_Caps(device, caps) == Midi_Ok && name == caps.name.data()) return device;
  }
  return -1;
}

void Midi_Rig_Test::SetUp() {
  rig = GetParam().make();
  ASSERT_NE(rig, nullptr);
  const int device = Find_Output(rig->Service(), rig->Device_Name());
  ASSERT_GE(device, 0) << rig->Device_Name();
  ASSERT_EQ(rig->Service().Out_Open(handle, device), Midi_Ok);
}

void Midi_Rig_Test::TearDown() {
  if (rig != nullptr && handle > 0) {
    rig->Release();
    EXPECT_EQ(Close(), Midi_Ok);
  }
}

int Midi_Rig_Test::Long(const Byte_String& bytes) {
  Midi_Service& service = rig->Service();
  MIDI_Header header;
  header.data = bytes;
  header.buffer_length = header.bytes_recorded = static_cast<std::uint32_t>(bytes.size());
  EXPECT_EQ(service.Out_Prepare(handle, header), Midi_Ok);
  const int code = service.Out_Long(handle, header);
  EXPECT_EQ(service.Out_Unprepare(handle, header), Midi_Ok);
  return code;
}

int Midi_Rig_Test::Short(std::uint32_t message) { return rig->Service().Out_Short(handle, message); }

void Midi_Rig_Test::Send(const Byte_String& bytes) {
  int code = Midi_Not_Ready;
  EXPECT_TRUE(Await([&] { return (code = Long(bytes)) != Midi_Not_Ready; }));
  EXPECT_EQ(code, Midi_Ok);
}

int Midi_Rig_Test::Close() {
  int code = Midi_Still_Playing;
  Await([&] { return (code = rig->Service().Out_Close(handle)) != Midi_Still_Playing; });
  if (code == Midi_Ok) handle = -1;
  return code;
}

TEST_P(Midi_Contract, Odd_Messages_Arrive_Byte_For_Byte) {
  const Byte_String large(1500, '\x11');
  Send(Double_Message());
  EXPECT_EQ(Long(Open_Message()), Midi_Ok);
  EXPECT_EQ(Long({}), Midi_Ok);
  EXPECT_EQ(Short(Packed(0, 60, 127)), Midi_Ok) << "no status byte: goes nowhere";
  EXPECT_EQ(Short(Packed(0x7F, 60, 127)), Midi_Ok);
  EXPECT_EQ(Short(Packed(0x9F, 60, 127)), Midi_Ok);
  EXPECT_EQ(Short(Packed(0xC2, 5, 99)), Midi_Ok) << "two bytes by its status";
  EXPECT_EQ(Long(Bytes_Of("41")), Midi_Ok) << "a lone data byte";
  Send("\xF0" + large + "\xF7");
  const Byte_String want =
      Double_Message() + Open_Message() + Bytes_Of("9F 3C 7F C2 05 41") + "\xF0" + large + "\xF7";
  EXPECT_EQ(Hex_Text(rig->Received(want.size())), Hex_Text(want));
}

TEST_P(Midi_Contract, Messages_Keep_Their_Order) {
  Byte_String want;
  for (int i = 0; i < 200; ++i) {
    Send(Numbered(i));
    EXPECT_EQ(Short(Packed(0x90, static_cast<unsigned>(i % 128), 1)), Midi_Ok);
    want += Numbered(i) + Byte_String{'\x90', static_cast<char>(i % 128), '\x01'};
  }
  EXPECT_EQ(Hex_Text(rig->Received(want.size())), Hex_Text(want));
}

TEST_P(Midi_Contract, A_Close_Delivers_What_Was_Taken) {
  Byte_String want;
  for (int i = 0; i < 20; ++i) {
    Send(Numbered(i));
    want += Numbered(i);
  }
  EXPECT_EQ(Close(), Midi_Ok);
  EXPECT_EQ(Hex_Text(rig->Received(want.size())), Hex_Text(want));
}

// Long messages are taken while fewer than 1,024 bytes wait, short ones while fewer than 4,096 do.
TEST_P(Midi_Hold_Contract, A_Full_Output_Answers_67_And_Loses_Nothing) {
  Send(Numbered(0));
  EXPECT_EQ(rig->Received(10), Numbered(0));
  rig->Hold();
  Byte_String want;
  int taken = 0;
  for (; Long(Numbered(taken)) == Midi_Ok && taken < 10'000; ++taken) want += Numbered(taken);
  EXPECT_EQ(taken, 103);
  EXPECT_EQ(Long(Numbered(taken)), Midi_Not_Ready);
  EXPECT_FALSE(rig->Service().Error_Text(Midi_Not_Ready).empty());
  const Byte_String note = Bytes_Of("90 3C 40");
  for (taken = 0; Short(Packed(0x90, 0x3C, 0x40)) == Midi_Ok && taken < 10'000; ++taken) want += note;
  EXPECT_EQ(taken, 1022);
  EXPECT_EQ(Short(Packed(0x90, 0x3C, 0x40)), Midi_Not_Ready);
  rig->Release();
  EXPECT_EQ(Hex_Text(rig->Received(want.size())), Hex_Text(want));
  Send(Numbered(1));
  EXPECT_EQ(Hex_Text(rig->Received(10)), Hex_Text(Numbered(1)));
}

TEST_P(Midi_Hold_Contract, A_Close_Answers_65_While_Messages_Are_Under_Way) {
  Send(Numbered(0));
  EXPECT_EQ(rig->Received(10), Numbered(0));
  rig->Hold();
  Send(Numbered(1));
  EXPECT_EQ(rig->Service().Out_Close(handle), Midi_Still_Playing);
  EXPECT_EQ(Short(Packed(0x90, 60, 1)), Midi_Ok) << "it is still open";
  rig->Release();
  EXPECT_EQ(Close(), Midi_Ok);
  EXPECT_EQ(Hex_Text(rig->Received(13)), Hex_Text(Numbered(1) + Bytes_Of("90 3C 01")));
}

TEST_P(Midi_Unplug_Contract, A_Port_That_Goes_Is_Told_By_Code_And_Text) {
  Send(Numbered(0));
  EXPECT_EQ(Hex_Text(rig->Received(10)), Hex_Text(Numbered(0)));
  Send(Double_Message());
  rig->Unplug();
  const int code = Long(Numbered(1));
  EXPECT_EQ(code, Midi_No_Device);
  EXPECT_FALSE(rig->Service().Error_Text(code).empty());
  EXPECT_EQ(Short(Packed(0x90, 60, 1)), Midi_No_Device);
  EXPECT_EQ(Close(), Midi_Ok);
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

Test_Input::~Test_Input() { EXPECT_EQ(service_.In_Close(handle), Midi_Ok); }
