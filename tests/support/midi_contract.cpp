#include "midi_contract.h"

#include <chrono>
#include <thread>

Byte_String Dump_Message(int number) {
  Byte_String bytes = Bytes_Of("F0 41 35 00 21 20 01");
  for (int i = 0; i < 59; ++i) bytes += static_cast<char>((i + number) % 128);
  return bytes + Bytes_Of("24 07 F0 41 36 00 21 30 01 00 01 01 02 02 03 03 04 04 05 05 06 06 40 F7");
}

Byte_String Name_Message() {
  return Bytes_Of("F0 41 36 00 21 20 01 00 54 01 45 02 53 03 54 04 20 05 20 06 20 07 20 08 20 09 20 0F");
}

bool Await(const std::function<bool()>& condition) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  return true;
}

std::int32_t Open_Output(Midi_Service& service, const std::string& name) {
  std::int32_t handle = -1;
  MIDI_Out_Caps caps;
  for (int device = 0; service.Out_Caps(device, caps) == Midi_Ok; ++device) {
    if (name == caps.name.data() && service.Out_Open(handle, device) == Midi_Ok) return handle;
  }
  return -1;
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

void Expect_Contract(Midi_Service& service, const std::string& name,
                     const std::function<Byte_String(std::size_t count)>& received) {
  const std::int32_t handle = Open_Output(service, name);
  Byte_String want;
  const auto send = [&](const Byte_String& bytes) {
    EXPECT_TRUE(Await([&] { return Send_Long(service, handle, bytes) == Midi_Ok; }));
    want += bytes;
  };
  for (const Byte_String& bytes : {Dump_Message(0), Name_Message(), Byte_String()}) send(bytes);
  // No status byte: goes nowhere. Two bytes by its status.
  for (const unsigned message : {0x7F3C00U, 0x7F3C7FU, 0x7F3C9FU, 0x6305C2U})
    EXPECT_EQ(service.Out_Short(handle, message), Midi_Ok);
  want += Bytes_Of("9F 3C 7F C2 05");
  send("\x41");
  send("\xF0" + Byte_String(1500, '\x11') + "\xF7");
  for (int i = 0; i < 100; ++i) {
    send(Bytes_Of("F0 41 36 00 21 20 01 00 ") + static_cast<char>(i) + '\xF7');
    EXPECT_EQ(service.Out_Short(handle, 0x010090U + static_cast<unsigned>(i) * 256), Midi_Ok);
    want += Byte_String{'\x90', static_cast<char>(i), '\x01'};
  }
  EXPECT_EQ(Close_Output(service, handle), Midi_Ok);
  EXPECT_EQ(Hex_Text(received(want.size())), Hex_Text(want));
}

void Posts::Add(std::function<void()> fn) {
  const std::lock_guard lock(mutex_);
  posts_.push_back(std::move(fn));
}

void Posts::Run() {
  std::unique_lock lock(mutex_);
  const auto posts = std::exchange(posts_, {});
  lock.unlock();
  for (const auto& post : posts) post();
}

Test_Input::Test_Input(Midi_Service& service, const std::string& name) : service_(service) {
  const auto receive = [this](MIDI_Header& header) {
    received.push_back(header.data);
    EXPECT_EQ(service_.In_Add_Buffer(handle, header), Midi_Ok);
  };
  MIDI_In_Caps caps;
  int device = 0;
  while (service.In_Caps(device, caps) == Midi_Ok && name != caps.name.data()) ++device;
  EXPECT_EQ(service.In_Open(handle, device, receive), Midi_Ok);
  for (MIDI_Header& header : headers_) {
    header.buffer_length = 10'000;
    EXPECT_EQ(service.In_Prepare(handle, header), Midi_Ok);
    EXPECT_EQ(service.In_Add_Buffer(handle, header), Midi_Ok);
  }
  EXPECT_EQ(service.In_Start(handle), Midi_Ok);
}
