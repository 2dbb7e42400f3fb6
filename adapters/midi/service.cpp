#include "adapters/midi/service.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "adapters/midi/device_names.h"
#include "adapters/midi/error_texts.h"
#include "adapters/midi/short_message.h"

namespace Midi {
namespace {

constexpr std::uint16_t Technology_Port = 1;
constexpr std::uint16_t All_Channels = 0xFFFF;

template <class Open>
auto Find_End(Open& open, std::int32_t handle) -> decltype(open.begin()->second.end.get()) {
  const auto found = open.find(handle);
  return found == open.end() ? nullptr : found->second.end.get();
}

bool Is_There(Backend& backend, const Port& port, Direction direction) {
  const std::vector<Port> ports = backend.Ports(direction);
  return std::any_of(ports.begin(), ports.end(), [&port](const Port& other) {
    return other.address == port.address && other.name == port.name;
  });
}

}  // namespace

Service::Service(std::vector<Backend*> backends, Poster post, Clock& clock)
    : backends_(std::move(backends)), post_(std::move(post)), clock_(clock) {
  Refresh();
}

Service::~Service() = default;

void Service::Refresh() {
  for (Backend* backend : backends_) backend->Refresh();
  outputs_ = List(Direction::Output);
  inputs_ = List(Direction::Input);
}

std::vector<Service::Device> Service::List(Direction direction) {
  std::vector<Device> devices;
  std::vector<std::string> names;
  for (Backend* backend : backends_) {
    for (Port& port : backend->Ports(direction)) {
      names.push_back(port.name);
      devices.push_back({backend, std::move(port), {}});
    }
  }
  names = Unique_Names(names);
  for (std::size_t i = 0; i < devices.size(); ++i) devices[i].name = std::move(names[i]);
  return devices;
}

template <class End, class Open>
int Service::Open_End(Open_Devices<End>& open, Direction direction, int device, std::int32_t& handle,
                      const Open& open_end) {
  const std::vector<Device>& devices = direction == Direction::Output ? outputs_ : inputs_;
  if (device < 0 || device >= static_cast<int>(devices.size())) return Midi_Bad_Device;
  const Device& chosen = devices[static_cast<std::size_t>(device)];
  for (const auto& [other, row] : open) {
    if (row.device.Same_Port(chosen)) return Midi_Allocated;
  }
  try {
    Open_Device<End> opened{chosen, open_end(*chosen.backend, chosen.port)};
    if (opened.end == nullptr)
      return Is_There(*chosen.backend, chosen.port, direction) ? Midi_Allocated : Midi_No_Device;
    open.emplace(last_handle_ + 1, std::move(opened));
  } catch (const std::exception&) {  // no memory, or no thread
    return Midi_No_Memory;
  }
  handle = ++last_handle_;
  return Midi_Ok;
}

int Service::Out_Count() { return static_cast<int>(outputs_.size()); }
int Service::In_Count() { return static_cast<int>(inputs_.size()); }

int Service::Out_Caps(int device, MIDI_Out_Caps& caps) {
  if (device < 0 || device >= Out_Count()) return Midi_Bad_Device;
  caps = {};
  outputs_[static_cast<std::size_t>(device)].name.copy(caps.name.data(), Midi_Name_Size - 1);
  caps.technology = Technology_Port;
  caps.channel_mask = All_Channels;
  return Midi_Ok;
}

int Service::In_Caps(int device, MIDI_In_Caps& caps) {
  if (device < 0 || device >= In_Count()) return Midi_Bad_Device;
  caps = {};
  inputs_[static_cast<std::size_t>(device)].name.copy(caps.name.data(), Midi_Name_Size - 1);
  return Midi_Ok;
}

int Service::Out_Open(std::int32_t& handle, int device) {
  const auto open = [this](Backend& backend, const Port& port) -> std::unique_ptr<Sender> {
    std::unique_ptr<Sink> sink = backend.Open_Output(port);
    return sink == nullptr ? nullptr : std::make_unique<Sender>(std::move(sink), port.wire, clock_);
  };
  return Open_End(open_outputs_, Direction::Output, device, handle, open);
}

int Service::Out_Short(std::int32_t handle, std::uint32_t message) {
  Sender* sender = Find_End(open_outputs_, handle);
  if (sender == nullptr) return Midi_Invalid_Handle;
  return sender->Send(Message_Kind::Short, Short_Message(message).Bytes());
}

int Service::Out_Prepare(std::int32_t handle, MIDI_Header& header) {
  if (Find_End(open_outputs_, handle) == nullptr) return Midi_Invalid_Handle;
  if (header.buffer_length > header.data.size()) return Midi_Invalid_Parameter;
  header.flags |= Header_Prepared;
  return Midi_Ok;
}

int Service::Out_Long(std::int32_t handle, MIDI_Header& header) {
  Sender* sender = Find_End(open_outputs_, handle);
  if (sender == nullptr) return Midi_Invalid_Handle;
  if ((header.flags & Header_Prepared) == 0) return Midi_Unprepared;
  if (header.buffer_length > header.data.size()) return Midi_Invalid_Parameter;
  const int code =
      sender->Send(Message_Kind::Long, std::string_view(header.data).substr(0, header.buffer_length));
  // The bytes were copied, so the caller has its buffer back at once.
  if (code == Midi_Ok) header.flags |= Header_Done;
  return code;
}

int Service::Out_Unprepare(std::int32_t handle, MIDI_Header& header) {
  if (Find_End(open_outputs_, handle) == nullptr) return Midi_Invalid_Handle;
  header.flags &= ~Header_Prepared;
  return Midi_Ok;
}

int Service::Out_Close(std::int32_t handle) {
  Sender* sender = Find_End(open_outputs_, handle);
  if (sender == nullptr) return Midi_Invalid_Handle;
  if (const int code = sender->Close(); code != Midi_Ok) return code;
  open_outputs_.erase(handle);
  return Midi_Ok;
}

int Service::In_Open(std::int32_t& handle, int device, Midi_Receiver receiver) {
  const auto open = [this, &receiver](Backend& backend, const Port& port) -> std::unique_ptr<Input> {
    auto input = std::make_unique<Input>(std::move(receiver), post_);
    return input->Open(backend, port) ? std::move(input) : nullptr;
  };
  return Open_End(open_inputs_, Direction::Input, device, handle, open);
}

int Service::In_Prepare(std::int32_t handle, MIDI_Header& header) {
  if (Find_End(open_inputs_, handle) == nullptr) return Midi_Invalid_Handle;
  header.flags |= Header_Prepared;
  return Midi_Ok;
}

int Service::In_Add_Buffer(std::int32_t handle, MIDI_Header& header) {
  Input* input = Find_End(open_inputs_, handle);
  return input == nullptr ? Midi_Invalid_Handle : input->Add_Buffer(header);
}

int Service::In_Unprepare(std::int32_t handle, MIDI_Header& header) {
  Input* input = Find_End(open_inputs_, handle);
  if (input == nullptr) return Midi_Invalid_Handle;
  if (input->Has_Buffer(header)) return Midi_Still_Playing;
  header.flags &= ~Header_Prepared;
  return Midi_Ok;
}

int Service::In_Start(std::int32_t handle) {
  Input* input = Find_End(open_inputs_, handle);
  if (input == nullptr) return Midi_Invalid_Handle;
  input->Start();
  return Midi_Ok;
}

int Service::In_Reset(std::int32_t handle) {
  Input* input = Find_End(open_inputs_, handle);
  if (input == nullptr) return Midi_Invalid_Handle;
  input->Reset();
  return Midi_Ok;
}

int Service::In_Close(std::int32_t handle) {
  return open_inputs_.erase(handle) == 0 ? Midi_Invalid_Handle : Midi_Ok;
}

std::string Service::Error_Text(int code) { return std::string(Text_Of_Code(code)); }

Line_Counts Service::Counts(std::int32_t handle) {
  Sender* sender = Find_End(open_outputs_, handle);
  return sender == nullptr ? Line_Counts{} : sender->Counts();
}

}  // namespace Midi
