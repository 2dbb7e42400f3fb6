#include "adapters/jack/client.h"

#include <jack/midiport.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <limits>
#include <utility>

namespace Jack {
namespace {

constexpr const char* Client_Name = "MELVOR";
constexpr unsigned Connection_Periods = 2;  // until a connection is in force for both sides
constexpr std::int64_t Longest_Wait_us =
    500'000;  // for periods of a server that does not run, or a connection
constexpr std::int64_t Longest_Drain_us = 10'000'000;
constexpr std::int64_t No_End_us = std::numeric_limits<std::int64_t>::max();
constexpr std::chrono::milliseconds Look_Again(1);

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

std::shared_ptr<Client> Client::Connect(const std::weak_ptr<Worker::Queue>& worker, Midi::Clock& clock) {
  Silence_Library();
  jack_client_t* opened = jack_client_open(Client_Name, JackNoStartServer, nullptr);
  if (opened == nullptr) return nullptr;
  const auto let_go = [worker](Client* client) {
    if (On_Worker(worker) || !Post_Task(worker, [client] { delete client; })) delete client;
  };
  std::shared_ptr<Client> client(new Client(opened, worker, clock), let_go);
  return client->Activate() ? client : nullptr;
}

Client::Client(jack_client_t* client, const std::weak_ptr<Worker::Queue>& worker, Midi::Clock& clock)
    : client_(client), worker_(worker), clock_(clock) {
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

// Both ends of the slots' lives need the server and so run on the worker, in steps: what one slot waits for
// keeps no other waiting.
template <class Slot>
void Client::Post_Opening(Slot& slot, const char* name, unsigned long flags) {
  slot.opened = false;
  Post_Task(worker_, [self = shared_from_this(), &slot, name, flags] {
    // A slot number behind the name: several ports may be open at once.
    for (std::size_t i = 1; i <= Slots && slot.port == nullptr && !self->dead_; ++i) {
      const std::string own = i == 1 ? name : name + std::string(" ") + std::to_string(i);
      slot.port = jack_port_register(self->client_, own.c_str(), JACK_DEFAULT_MIDI_TYPE, flags, 0);
    }
    const auto linked = std::make_shared<bool>(false);
    // A program that starts shows its ports a moment before they can be connected.
    const auto link = [self, &slot, linked] {
      if (slot.port == nullptr || !self->Has_Port(slot.other)) return true;
      const int code = self->Link(slot);
      return *linked = code == 0 || code == EEXIST;
    };
    self->When(link, Longest_Wait_us, [self, &slot, linked] {
      if (!*linked) {
        Lost(slot);
        slot.opened = true;
        return;
      }
      self->After_Periods(Connection_Periods, [self, &slot] {
        slot.state = Slot_State::Live;
        slot.opened = true;
        if (!self->Has_Port(slot.other)) Lost(slot);  // a look for lost ports passes over those that open
      });
    });
  });
}

template <class Slot>
void Client::Post_Closing(Slot& slot) {
  Post_Task(worker_, [self = shared_from_this(), &slot] {
    self->When([&slot] { return slot.opened; }, No_End_us,
               [self, &slot] {
                 // A close does not wait for a server that is stopped. Once the server continues, what was
                 // sent still goes out: the last of it ends the notes.
                 self->When([self, &slot] { return self->Drained(slot); }, Longest_Drain_us,
                            [self, &slot] { self->Close_Drained(slot); });
               });
  });
}

template <class Slot>
void Client::Close_Drained(Slot& slot) {
  slot.state = Slot_State::Closing;
  jack_port_t* port = slot.port.exchange(nullptr);
  // By then the process thread has left it.
  After_Periods(1, [self = shared_from_this(), &slot, port] {
    if (port != nullptr && !self->dead_) jack_port_unregister(self->client_, port);
    slot.state = Slot_State::Free;
  });
}

int Client::Link(const Output_Slot& slot) const {
  return jack_connect(client_, jack_port_name(slot.port), slot.other.c_str());
}

int Client::Link(const Input_Slot& slot) const {
  return jack_connect(client_, slot.other.c_str(), jack_port_name(slot.port));
}

bool Client::Drained(const Output_Slot& slot) const {
  return dead_ || slot.gone || slot.port == nullptr || slot.Drained();
}

void Client::When(Look look, std::int64_t patience_us, Task next) {
  const std::int64_t now_us = clock_.Now_us();
  Look_Until(patience_us == No_End_us ? No_End_us : now_us + patience_us, std::move(look), std::move(next));
}

void Client::Look_Until(std::int64_t end_us, Look look, Task next) {
  if (look() || clock_.Now_us() >= end_us) return next();
  Post_Task(
      worker_,
      [self = shared_from_this(), end_us, look = std::move(look), next = std::move(next)]() mutable {
        self->Look_Until(end_us, std::move(look), std::move(next));
      },
      Look_Again);
}

void Client::After_Periods(unsigned count, Task next) {
  const auto passed = [this, start = periods_.load(), count] { return dead_ || periods_ - start > count; };
  When(passed, Longest_Wait_us, std::move(next));
}

void Client::Find_Gone() {
  look_posted_ = false;
  // The server announces this before the port has disappeared.
  After_Periods(Connection_Periods, [self = shared_from_this()] {
    for (Output_Slot& slot : self->outputs_) {
      if (slot.state == Slot_State::Live && !self->Has_Port(slot.other)) slot.gone = true;
    }
  });
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
