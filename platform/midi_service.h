// The MIDI service: the operations, records, codes and texts of the classic multimedia MIDI interface.
// app/ or a test installs a service before anything runs. All calls come on the user-interface thread, none
// of them waits for the wire but for midiOutClose, which waits 10 ms at most.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>

// Raw bytes of a message, 0 to 255 each. No character conversion may touch them.
using Byte_String = std::string;

// Result codes, numbers as published for the interface.
constexpr int Midi_Ok = 0;
constexpr int Midi_Error = 1;  // unspecified
constexpr int Midi_Bad_Device = 2;
constexpr int Midi_Allocated = 4;
constexpr int Midi_Invalid_Handle = 5;
constexpr int Midi_No_Driver = 6;
constexpr int Midi_No_Memory = 7;
constexpr int Midi_Not_Supported = 8;
constexpr int Midi_Invalid_Parameter = 11;
constexpr int Midi_Unprepared = 64;
constexpr int Midi_Still_Playing = 65;
constexpr int Midi_Not_Ready = 67;
constexpr int Midi_No_Device = 68;

constexpr int Midi_Name_Size = 32;  // of a name field, its closing zero included

struct MIDI_Out_Caps {
  std::uint16_t manufacturer = 0;
  std::uint16_t product = 0;
  std::uint32_t driver_version = 0;
  std::array<char, Midi_Name_Size> name{};
  std::uint16_t technology = 0;
  std::uint16_t voices = 0;
  std::uint16_t notes = 0;
  std::uint16_t channel_mask = 0;
  std::uint32_t support = 0;
};

struct MIDI_In_Caps {
  std::uint16_t manufacturer = 0;
  std::uint16_t product = 0;
  std::uint32_t driver_version = 0;
  std::array<char, Midi_Name_Size> name{};
};

// Sizes as the queries give them. The published input record goes on with a support field after these bytes.
static_assert(sizeof(MIDI_Out_Caps) == 52 && sizeof(MIDI_In_Caps) == 40);

constexpr std::uint32_t Header_Done = 1;
constexpr std::uint32_t Header_Prepared = 2;

struct MIDI_Header {
  Byte_String data;
  std::uint32_t buffer_length = 0;
  std::uint32_t bytes_recorded = 0;
  std::uint32_t user = 0;
  std::uint32_t flags = 0;
};

// Takes a buffer back from a started input: data holds one complete System Exclusive message, F0 to F7, and
// bytes_recorded its length.
using Midi_Receiver = std::function<void(MIDI_Header& header)>;

// The port itself. Handles are above 0. Every call answers Midi_Ok or another code; where it says nothing
// else, a failed call has done nothing and leaves what it was given as it was. Midi_Invalid_Handle is the
// answer to a handle that is not open.
struct Midi_Service {
  virtual ~Midi_Service() = default;

  // Makes the device lists anew. Open devices stay open.
  virtual void Refresh() = 0;

  virtual int Out_Count() = 0;
  // 2: no such device.
  [[nodiscard]] virtual int Out_Caps(int device, MIDI_Out_Caps& caps) = 0;
  // 2: no such device; 4: it is in use, here or by another program; 68: it is no longer there; 7: no memory,
  // or no thread.
  [[nodiscard]] virtual int Out_Open(std::int32_t& handle, int device) = 0;
  // Low byte status, then data 1 and data 2. Bytes beyond the status's own length are not sent; without a
  // status byte nothing is, which is no error. 67: too much waits already; 68: the device is no longer there;
  // 1: the system failed to take an earlier message, which it is now asked to take again. A failed call sends
  // nothing.
  virtual int Out_Short(std::int32_t handle, std::uint32_t message) = 0;
  // 11: the header's data is shorter than its buffer_length.
  [[nodiscard]] virtual int Out_Prepare(std::int32_t handle, MIDI_Header& header) = 0;
  // Sets Header_Done; the header is free again at once. 64: not prepared; 11: as Out_Prepare, or longer than
  // any message may be; 1, 67, 68: as Out_Short.
  virtual int Out_Long(std::int32_t handle, MIDI_Header& header) = 0;
  virtual int Out_Unprepare(std::int32_t handle, MIDI_Header& header) = 0;
  // 65: messages are still under way, and the device stays open; ask again. It gives up on those that do not
  // move for a second.
  [[nodiscard]] virtual int Out_Close(std::int32_t handle) = 0;

  virtual int In_Count() = 0;
  // As Out_Caps.
  [[nodiscard]] virtual int In_Caps(int device, MIDI_In_Caps& caps) = 0;
  // As Out_Open. The receiver runs on the user-interface thread, never inside a call of the service, and
  // never after In_Close; after a failed call it never runs.
  [[nodiscard]] virtual int In_Open(std::int32_t& handle, int device, Midi_Receiver receiver) = 0;
  // Prepares a buffer of buffer_length bytes, and hands it to the input to be filled; it stays there, at its
  // address, until the receiver gets it, or the input is reset or closed. A message that finds no buffer, or
  // none that is long enough, is dropped. 64: not prepared; 65: the input has it already.
  [[nodiscard]] virtual int In_Prepare(std::int32_t handle, MIDI_Header& header) = 0;
  [[nodiscard]] virtual int In_Add_Buffer(std::int32_t handle, MIDI_Header& header) = 0;
  // 65: the input still has the buffer.
  [[nodiscard]] virtual int In_Unprepare(std::int32_t handle, MIDI_Header& header) = 0;
  [[nodiscard]] virtual int In_Start(std::int32_t handle) = 0;
  // Stops the input and takes its buffers back, each with Header_Done and no bytes.
  [[nodiscard]] virtual int In_Reset(std::int32_t handle) = 0;
  // Resets the input and ends it.
  [[nodiscard]] virtual int In_Close(std::int32_t handle) = 0;

  // Text of a code; empty for a code it does not know.
  virtual std::string Error_Text(int code) = 0;
};

void Install_Midi_Service(
    Midi_Service* service);  // nullptr takes it away: every call answers 6, every count is 0

// The operations under their published names; the codes are the service's.
void midiRefreshDevices();
int midiOutGetNumDevs();
[[nodiscard]] int midiOutGetDevCaps(int device, MIDI_Out_Caps& caps);
[[nodiscard]] int midiOutOpen(std::int32_t& handle, int device);
int midiOutShortMsg(std::int32_t handle, std::uint32_t message);
[[nodiscard]] int midiOutPrepareHeader(std::int32_t handle, MIDI_Header& header);
int midiOutLongMsg(std::int32_t handle, MIDI_Header& header);
int midiOutUnprepareHeader(std::int32_t handle, MIDI_Header& header);
[[nodiscard]] int midiOutClose(std::int32_t handle);
std::string midiOutGetErrorText(int code);
int midiInGetNumDevs();
[[nodiscard]] int midiInGetDevCaps(int device, MIDI_In_Caps& caps);
[[nodiscard]] int midiInOpen(std::int32_t& handle, int device, Midi_Receiver receiver);
[[nodiscard]] int midiInPrepareHeader(std::int32_t handle, MIDI_Header& header);
[[nodiscard]] int midiInAddBuffer(std::int32_t handle, MIDI_Header& header);
[[nodiscard]] int midiInUnprepareHeader(std::int32_t handle, MIDI_Header& header);
[[nodiscard]] int midiInStart(std::int32_t handle);
[[nodiscard]] int midiInReset(std::int32_t handle);
[[nodiscard]] int midiInClose(std::int32_t handle);
std::string midiInGetErrorText(int code);
