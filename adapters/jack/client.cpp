#include "adapters/jack/client.h"

#include <jack/midiport.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <exception>
#include <utility>

namespace Jack {
namespace {

constexpr const char* Client_Name = "MELVOR";
constexpr unsigned Connection_Periods = 2;  // until a connection is in force for both sides
constexpr int Longest_Wait_ms = 500;        // for periods of a server that does not run, or for a connection
constexpr int Link_Again_ms = 10;
constexpr int Longest_Drain_ms = 10'000;

void Say_Nothing(const char* /*message*/) {}

void Silence_Library() {
  jack_set_error_function(Say_Nothing);
  jack_set_info_function(Say_Nothing);
}

// The name people know a port by. Hardware ports are only numbered; what they are is their alias.
std::string Port_Name(const jack_port_t* port, const char* full_name) {
  if ((jack_port_flags(port) & JackPortIsPhysical) == 0) return full_name;
  const auto size = static_cast<std::size_t>(jack_port_name_size());
  std::string first(size, '\0');
  std::string second(size, '\0');
  char* const aliases[2] = {first.data(), second.data()};
  if (jack_port_get_aliases(port, aliases) < 1) return full_name;
  first.resize(first.find('\0'));
  return first;
}

}  // namespace

std::shared_ptr<Client> Client::Connect(const std::weak_ptr<Worker::Queue>& worker) {
  Silence_Library();
  jack_client_t* opened = jack_client_open(Client_Name, JackNoStartServer, nullptr);
  if (opened == nullptr) return nullptr;
  const auto let_go = [worker](Client* client) {
    if (On_Worker(worker) || !Post_Task(worker, [client] { delete client; })) delete client;
  };
  std::shared_ptr<Client> client(new Client(opened, worker), let_go);
  return client->Activate() ? client : nullptr;
}

Client::Client(jack_client_t* client, const std::weak_ptr<Worker::Queue>& worker)
    : client_(client),
      worker_(worker) {
  own_prefix_ = std::string(jack_get_client_name(client_)) + ":";
  sem_init(&input_waits_, 0, 0);
  input_thread_ = std::thread(&Client::Run_Input, this);
}

Client::~Client() {
  Take_Down();
  ended_ = true;
  sem_post(&input_waits_);
  input_thread_.join();
  sem_destroy(&input_waits_);
}

void Client::Take_Down() {
  {
    const std::lock_guard lock(taking_down_);
    if (std::exchange(taken_down_, true)) return;
  }
  jack_client_close(client_);
}

jack_nframes_t Client::Now() {
  const std::lock_guard lock(taking_down_);
  return taken_down_ ? 0 : jack_frame_time(client_);
}

bool Client::Activate() {
  const auto process = [](jack_nframes_t count, void* self) {
    return static_cast<Client*>(self)->Process(count);
  };
  const auto shut_down = [](void* self) { static_cast<Client*>(self)->dead_ = true; };
  const auto registered = [](jack_port_id_t, int is_new, void* self) {
    auto* client = static_cast<Client*>(self);
    // One look finds all that have gone: a program that ends takes many ports with it.
    if (is_new != 0 || client->look_posted_.exchange(true)) return;
    Post_Task(client->worker_, [weak = client->weak_from_this()] {
      if (const std::shared_ptr<Client> alive = weak.lock()) alive->Find_Gone();
    });
  };
  jack_set_process_callback(client_, process, this);
  jack_on_shutdown(client_, shut_down, this);
  jack_set_port_registration_callback(client_, registered, this);
  return jack_activate(client_) == 0;
}

std::vector<Midi::Port> Client::Ports(Midi::Direction direction) const {
  std::vector<Midi::Port> ports;
  if (dead_) return ports;
  const unsigned long flags = direction == Midi::Direction::Output ? JackPortIsInput : JackPortIsOutput;
  const char** names = jack_get_ports(client_, nullptr, JACK_DEFAULT_MIDI_TYPE, flags);
  for (const char** name = names; name != nullptr && *name != nullptr; ++name) {
    const jack_port_t* port = jack_port_by_name(client_, *name);
    if (port == nullptr || std::string_view(*name).starts_with(own_prefix_)) continue;
    ports.push_back({Port_Name(port, *name), *name, (jack_port_flags(port) & JackPortIsPhysical) != 0});
  }
  jack_free(names);
  return ports;
}

bool Client::Has_Port(const std::string& name) const {
  return !dead_ && jack_port_by_name(client_, name.c_str()) != nullptr;
}

// Both ends of the slots' lives need the server and so run on the worker, one after another.
template <class Slot>
void Client::Post_Opening(Slot& slot, const char* name, unsigned long flags) {
  Post_Task(worker_, [self = shared_from_this(), &slot, name, flags] {
    // A slot number behind the name: several ports may be open at once.
    for (std::size_t i = 1; i <= Slots && slot.port == nullptr && !self->dead_; ++i) {
      const std::string own = i == 1 ? name : name + std::string(" ") + std::to_string(i);
      slot.port = jack_port_register(self->client_, own.c_str(), JACK_DEFAULT_MIDI_TYPE, flags, 0);
    }
    if (slot.port == nullptr || !self->Link_Patiently(slot)) return Lost(slot);
    self->Wait_Periods(Connection_Periods);
    Slot_State opening = Slot_State::Opening;
    slot.state.compare_exchange_strong(opening, Slot_State::Live);
  });
}

template <class Slot>
void Client::Post_Closing(Slot& slot) {
  Post_Task(worker_, [self = shared_from_this(), &slot] {
    self->Wait_Drained(slot);
    slot.state = Slot_State::Closing;
    jack_port_t* port = slot.port.exchange(nullptr);
    self->Wait_Periods(1);  // the process thread has left it
    if (port != nullptr && !self->dead_) jack_port_unregister(self->client_, port);
    slot.state = Slot_State::Free;
  });
}

// A program that starts shows its ports a moment before they can be connected.
template <class Slot>
bool Client::Link_Patiently(Slot& slot) const {
  for (int waited_ms = 0; waited_ms < Longest_Wait_ms && !dead_ && Has_Port(slot.other);
       waited_ms += Link_Again_ms) {
    const int code = Link(slot);
    if (code == 0 || code == EEXIST) return true;
    std::this_thread::sleep_for(std::chrono::milliseconds(Link_Again_ms));
  }
  return false;
}

int Client::Link(const Output_Slot& slot) const {
  return jack_connect(client_, jack_port_name(slot.port), slot.other.c_str());
}

int Client::Link(const Input_Slot& slot) const {
  return jack_connect(client_, slot.other.c_str(), jack_port_name(slot.port));
}

void Client::Wait_Periods(unsigned count) const {
  const unsigned start = periods_;
  for (int waited_ms = 0; waited_ms < Longest_Wait_ms && !dead_ && periods_ - start <= count; ++waited_ms) {
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

// Whoever closes does not wait for a server that stands still. Once it goes on, what was sent still goes out:
// the last of it ends the notes.
void Client::Wait_Drained(const Output_Slot& slot) const {
  for (int waited_ms = 0; waited_ms < Longest_Drain_ms; ++waited_ms) {
    if (dead_ || slot.gone || slot.port == nullptr || slot.Drained()) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

void Client::Find_Gone() {
  look_posted_ = false;
  Wait_Periods(Connection_Periods);  // the server tells before the port has really gone
  for (Output_Slot& slot : outputs_) {
    if (slot.state == Slot_State::Live && !Has_Port(slot.other)) slot.gone = true;
  }
}

Output_Slot* Client::Open_Output(const std::string& destination) {
  if (!Has_Port(destination)) return nullptr;
  const auto is_free = [](const Output_Slot& slot) { return slot.state == Slot_State::Free; };
  Output_Slot* slot = std::find_if(outputs_.begin(), outputs_.end(), is_free);
  if (slot == outputs_.end()) return nullptr;
  slot->Empty();
  slot->other = destination;
  slot->state = Slot_State::Opening;
  Post_Opening(*slot, "out", JackPortIsOutput);
  return slot;
}

void Client::Close_Output(Output_Slot& slot) { Post_Closing(slot); }

Input_Slot* Client::Open_Input(const std::string& origin, Midi::Byte_Receiver receiver) {
  if (!Has_Port(origin)) return nullptr;
  const auto is_free = [](const Input_Slot& slot) { return slot.state == Slot_State::Free; };
  Input_Slot* slot = std::find_if(inputs_.begin(), inputs_.end(), is_free);
  if (slot == inputs_.end()) return nullptr;
  slot->other = origin;
  {
    const std::lock_guard lock(receivers_);
    slot->receiver = std::move(receiver);
  }
  slot->state = Slot_State::Opening;
  Post_Opening(*slot, "in", JackPortIsInput);
  return slot;
}

void Client::Close_Input(Input_Slot& slot) {
  {
    const std::lock_guard lock(receivers_);
    slot.receiver = nullptr;
  }
  Post_Closing(slot);
}

// The server's thread: takes no lock and no memory.
int Client::Process(jack_nframes_t count) {
  const jack_nframes_t period_start = jack_last_frame_time(client_);
  for (Output_Slot& slot : outputs_) slot.Process(period_start, count);
  for (std::uint32_t slot = 0; slot < Slots; ++slot) Read_Input(slot, count);
  ++periods_;
  return 0;
}

void Client::Read_Input(std::uint32_t slot, jack_nframes_t count) {
  jack_port_t* port = inputs_[slot].port;
  if (port == nullptr) return;
  void* buffer = jack_port_get_buffer(port, count);
  const std::uint32_t events = jack_midi_get_event_count(buffer);
  for (std::uint32_t i = 0; i < events; ++i) {
    jack_midi_event_t event{};
    if (jack_midi_event_get(&event, buffer, i) != 0) continue;
    if (!Midi::Put_Record(input_ring_, slot, {reinterpret_cast<const char*>(event.buffer), event.size})) {
      inputs_[slot].lost = true;
      continue;
    }
    sem_post(&input_waits_);
  }
}

void Client::Run_Input() {
  std::vector<char> bytes(Input_Ring_Size);
  for (;;) {
    while (sem_wait(&input_waits_) != 0) continue;  // a signal came between
    if (ended_) return;
    const std::optional<Midi::Record_Head> head = Midi::Take_Head(input_ring_);
    if (!head) continue;
    const std::size_t size = input_ring_.Read(bytes.data(), head->size);
    if (head->tag >= Slots) continue;
    const std::lock_guard lock(receivers_);
    Input_Slot& slot = inputs_[head->tag];
    if (!slot.receiver) continue;
    if (slot.lost.exchange(false)) slot.receiver(Midi::Break);
    slot.receiver({bytes.data(), size});
  }
}

}  // namespace Jack
