// The MIDI service over a list of backends: their ports one after another, as one list of outputs and one of
// inputs. Lets no exception out.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "adapters/midi/backend.h"
#include "adapters/midi/clock.h"
#include "adapters/midi/input.h"
#include "adapters/midi/sender.h"
#include "platform/midi_service.h"

namespace Midi {

struct Service final : Midi_Service {
  // Makes its lists at once. The backends stay the caller's and outlive the service. post: brings received
  // messages to the user-interface thread.
  Service(std::vector<Backend*> backends, Poster post, Clock& clock = Steady_Clock());
  ~Service() override;
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;

  void Refresh() override;
  int Out_Count() override;
  int Out_Caps(int device, MIDI_Out_Caps& caps) override;
  int Out_Open(std::int32_t& handle, int device) override;
  int Out_Short(std::int32_t handle, std::uint32_t message) override;
  int Out_Prepare(std::int32_t handle, MIDI_Header& header) override;
  int Out_Long(std::int32_t handle, MIDI_Header& header) override;
  int Out_Unprepare(std::int32_t handle, MIDI_Header& header) override;
  int Out_Close(std::int32_t handle) override;
  int In_Count() override;
  int In_Caps(int device, MIDI_In_Caps& caps) override;
  int In_Open(std::int32_t& handle, int device, Midi_Receiver receiver) override;
  int In_Prepare(std::int32_t handle, MIDI_Header& header) override;
  int In_Add_Buffer(std::int32_t handle, MIDI_Header& header) override;
  int In_Unprepare(std::int32_t handle, MIDI_Header& header) override;
  int In_Start(std::int32_t handle) override;
  int In_Reset(std::int32_t handle) override;
  int In_Close(std::int32_t handle) override;
  std::string Error_Text(int code) override;

  // Of an open output; zeros for a handle that is not open.
  Line_Counts Counts(std::int32_t handle);

 private:
  struct Device {
    Backend* backend = nullptr;
    Port port;
    std::string name;  // unique, at most 31 bytes
    bool Same_Port(const Device& other) const {
      return backend == other.backend && port.address == other.port.address;
    }
  };
  template <class End>
  struct Open_Device {
    Device device;
    std::unique_ptr<End> end;
  };
  template <class End>
  using Open_Devices = std::map<std::int32_t, Open_Device<End>>;

  std::vector<Device> List(Direction direction);
  template <class End, class Open>
  int Open_End(Open_Devices<End>& open, Direction direction, int device, std::int32_t& handle,
               const Open& open_end);

  std::vector<Backend*> backends_;
  Poster post_;
  Clock& clock_;
  std::vector<Device> outputs_;
  std::vector<Device> inputs_;
  Open_Devices<Sender> open_outputs_;
  Open_Devices<Input> open_inputs_;
  std::int32_t last_handle_ = 0;
};

}  // namespace Midi
