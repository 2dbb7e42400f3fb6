#include "adapters/alsa/client.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <utility>

#include "adapters/alsa/client_room.h"

namespace Alsa {
namespace {

constexpr const char* Client_Name = "MELVOR";
constexpr unsigned Writable = SND_SEQ_PORT_CAP_WRITE | SND_SEQ_PORT_CAP_SUBS_WRITE;
constexpr unsigned Readable = SND_SEQ_PORT_CAP_READ | SND_SEQ_PORT_CAP_SUBS_READ;
// Not a synthesizer on a card, which knows no bytes.
constexpr unsigned Socket = SND_SEQ_PORT_TYPE_HARDWARE | SND_SEQ_PORT_TYPE_PORT;
constexpr std::size_t Input_Cells = 2000;  // of 28 bytes: the most there are
constexpr std::size_t Decoded_Size = 16;   // of any message that is not System Exclusive
constexpr unsigned char First_Status = 0x80;
constexpr unsigned char First_System_Status = 0xF0;

void Say_Nothing(const char*, int, const char*, int, const char*, ...) {}

// Most ports have their client's name in their own; the others are nothing without it.
std::string Port_Name(const std::string& client, const std::string& port) {
  return port.starts_with(client) ? port : client + " " + port;
}

std::string Address_Text(const snd_seq_addr_t& address) {
  return std::to_string(address.client) + ":" + std::to_string(address.port);
}

struct Listed_Port {
  snd_seq_addr_t address;
  Midi::Port port;
};

std::vector<Listed_Port> List_Ports(snd_seq_t* sequencer, Midi::Direction direction) {
  const unsigned wanted = direction == Midi::Direction::Output ? Writable : Readable;
  const int own = snd_seq_client_id(sequencer);
  std::vector<Listed_Port> ports;
  snd_seq_client_info_t* client = nullptr;
  snd_seq_port_info_t* port = nullptr;
  snd_seq_client_info_alloca(&client);
  snd_seq_port_info_alloca(&port);
  snd_seq_client_info_set_client(client, -1);
  while (snd_seq_query_next_client(sequencer, client) >= 0) {
    const int number = snd_seq_client_info_get_client(client);
    if (number == own || number == SND_SEQ_CLIENT_SYSTEM) continue;
    const bool kernel = snd_seq_client_info_get_type(client) == SND_SEQ_KERNEL_CLIENT;
    snd_seq_port_info_set_client(port, number);
    snd_seq_port_info_set_port(port, -1);
    while (snd_seq_query_next_port(sequencer, port) >= 0) {
      const unsigned capabilities = snd_seq_port_info_get_capability(port);
      if ((capabilities & wanted) != wanted || (capabilities & SND_SEQ_PORT_CAP_NO_EXPORT) != 0) continue;
      const bool hardware = (snd_seq_port_info_get_type(port) & Socket) == Socket;
      const snd_seq_addr_t address = *snd_seq_port_info_get_addr(port);
      const std::string name =
          Port_Name(snd_seq_client_info_get_name(client), snd_seq_port_info_get_name(port));
      ports.push_back({address, {name, Address_Text(address), kernel && hardware}});
    }
  }
  return ports;
}

struct Error_Row {
  int error;
  Midi::Write_Result result;
};

constexpr Error_Row Known_Errors[] = {
    {-EAGAIN, Midi::Write_Result::Busy}, {-EINTR, Midi::Write_Result::Busy},
    {-ENOMEM, Midi::Write_Result::Busy}, {-ENOENT, Midi::Write_Result::Gone},
    {-ENODEV, Midi::Write_Result::Gone}, {-ENXIO, Midi::Write_Result::Gone},
};

Midi::Write_Result Result_Of(int result) {
  if (result >= 0) return Midi::Write_Result::Taken;
  for (const Error_Row& row : Known_Errors) {
    if (row.error == result) return row.result;
  }
  return Midi::Write_Result::Failed;
}

bool Same_Address(const snd_seq_addr_t& one, const snd_seq_addr_t& other) {
  return one.client == other.client && one.port == other.port;
}

}  // namespace

std::unique_ptr<Client> Client::Open() {
  snd_lib_error_set_handler(Say_Nothing);
  snd_seq_t* opened = nullptr;
  if (snd_seq_open(&opened, "default", SND_SEQ_OPEN_DUPLEX, SND_SEQ_NONBLOCK) < 0) return nullptr;
  std::unique_ptr<Client> client(new Client(opened));
  if (!client->Listen_To_Announcements()) return nullptr;
  client->thread_ = std::thread(&Client::Run, client.get());
  return client;
}

Client::Client(snd_seq_t* sequencer) : sequencer_(sequencer), wake_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  pollfd descriptor{};
  snd_seq_poll_descriptors(sequencer_, &descriptor, 1, POLLOUT);
  file_ = descriptor.fd;
  snd_seq_set_client_name(sequencer_, Client_Name);
  snd_seq_set_client_pool_input(sequencer_, Input_Cells);
}

Client::~Client() {
  ended_ = true;
  eventfd_write(wake_, 1);
  if (thread_.joinable()) thread_.join();
  for (snd_midi_event_t* coder : {decoder_, encoder_}) {
    if (coder != nullptr) snd_midi_event_free(coder);
  }
  if (wake_ >= 0) close(wake_);
  snd_seq_close(sequencer_);
}

bool Client::Listen_To_Announcements() {
  if (wake_ < 0) return false;
  for (snd_midi_event_t** coder : {&decoder_, &encoder_}) {
    if (snd_midi_event_new(Decoded_Size, coder) < 0) return false;
  }
  snd_midi_event_no_status(decoder_, 1);
  announcements_ = Make_Port("announcements", SND_SEQ_PORT_CAP_WRITE | SND_SEQ_PORT_CAP_NO_EXPORT);
  return announcements_ >= 0 && snd_seq_connect_from(sequencer_, announcements_, SND_SEQ_CLIENT_SYSTEM,
                                                     SND_SEQ_PORT_SYSTEM_ANNOUNCE) >= 0;
}

int Client::Make_Port(const char* name, unsigned capabilities) {
  return snd_seq_create_simple_port(sequencer_, name, capabilities,
                                    SND_SEQ_PORT_TYPE_MIDI_GENERIC | SND_SEQ_PORT_TYPE_APPLICATION);
}

std::vector<Midi::Port> Client::Ports(Midi::Direction direction) const {
  std::vector<Midi::Port> ports;
  for (Listed_Port& row : List_Ports(sequencer_, direction)) ports.push_back(std::move(row.port));
  std::stable_partition(ports.begin(), ports.end(), [](const Midi::Port& port) { return port.wire; });
  return ports;
}

// An address that has gone may have been given to another port since, so the name has to be the same too.
bool Client::Is_There(const Midi::Port& port, Midi::Direction direction, snd_seq_addr_t& address) const {
  for (const Listed_Port& row : List_Ports(sequencer_, direction)) {
    if (row.port.address != port.address || row.port.name != port.name) continue;
    address = row.address;
    return true;
  }
  return false;
}

bool Client::Open_Output(const Midi::Port& port, Destination& destination) {
  if (!Is_There(port, Midi::Direction::Output, destination.address)) return false;
  destination.wire = port.wire;
  destination.own_port = Make_Port("out", Readable);
  if (destination.own_port < 0) return false;
  {
    const std::lock_guard lock(ports_);
    destinations_.push_back(&destination);
  }
  // A kernel port is only opened for those who are connected to it, though the events go to its address.
  const snd_seq_addr_t to = destination.address;
  if (snd_seq_connect_to(sequencer_, destination.own_port, to.client, to.port) >= 0) return true;
  Close_Output(destination);
  return false;
}

bool Client::Open_Input(const Midi::Port& port, Origin& origin) {
  snd_seq_addr_t from{};
  if (!Is_There(port, Midi::Direction::Input, from)) return false;
  origin.own_port = Make_Port("in", Writable);
  if (origin.own_port < 0) return false;
  {
    const std::lock_guard lock(ports_);
    origins_.push_back(&origin);
  }
  if (snd_seq_connect_from(sequencer_, origin.own_port, from.client, from.port) >= 0) return true;
  Close_Input(origin);
  return false;
}

void Client::Close_Output(Destination& destination) {
  {
    const std::lock_guard lock(ports_);
    std::erase(destinations_, &destination);
  }
  Delete_Later(destination.own_port);
}

void Client::Close_Input(Origin& origin) {
  {
    const std::lock_guard lock(ports_);
    std::erase(origins_, &origin);
  }
  Delete_Later(origin.own_port);
}

void Client::Delete_Later(int own_port) {
  const std::lock_guard lock(ports_);
  to_delete_.push_back(own_port);
  eventfd_write(wake_, 1);
}

// Other programs look at an event's type: a note that came as raw bytes they would not hear. False: the bytes
// are no whole channel message.
bool Client::Encode(std::string_view bytes, snd_seq_event_t& event) {
  const auto status = static_cast<unsigned char>(bytes[0]);
  if (status < First_Status || status >= First_System_Status) return false;
  snd_midi_event_reset_encode(encoder_);
  const auto size = static_cast<long>(bytes.size());
  const auto* data = reinterpret_cast<const unsigned char*>(bytes.data());
  return snd_midi_event_encode(encoder_, data, size, &event) == size && event.type != SND_SEQ_EVENT_NONE;
}

Midi::Write_Result Client::Write(const Destination& destination, std::string_view bytes) {
  if (!Has_Room(file_, destination.address.client, bytes.size())) return Midi::Write_Result::Busy;
  const std::lock_guard lock(output_);
  snd_seq_event_t event;
  snd_seq_ev_clear(&event);
  // On a wire the bytes stay as they are: the kernel may leave out a status byte that is that of the
  // message before.
  if (destination.wire || !Encode(bytes, event))
    snd_seq_ev_set_sysex(&event, static_cast<unsigned>(bytes.size()), const_cast<char*>(bytes.data()));
  snd_seq_ev_set_source(&event, static_cast<unsigned char>(destination.own_port));
  snd_seq_ev_set_dest(&event, destination.address.client, destination.address.port);
  snd_seq_ev_set_direct(&event);
  return Result_Of(snd_seq_event_output_direct(sequencer_, &event));
}

void Client::Run() {
  std::vector<pollfd> waits(static_cast<std::size_t>(snd_seq_poll_descriptors_count(sequencer_, POLLIN)));
  snd_seq_poll_descriptors(sequencer_, waits.data(), static_cast<unsigned>(waits.size()), POLLIN);
  waits.push_back({wake_, POLLIN, 0});
  // A file in this state wakes the poll at once, each time, and has nothing to read.
  const auto broken = [](const pollfd& wait) { return (wait.revents & (POLLERR | POLLHUP | POLLNVAL)) != 0; };
  while (!ended_) {
    if (poll(waits.data(), waits.size(), -1) < 0) {
      if (errno == EINTR) continue;
      break;
    }
    eventfd_t count = 0;
    eventfd_read(wake_, &count);
    Delete_Ports();
    if (std::any_of(waits.begin(), waits.end(), broken) || !Read_Events()) break;
  }
  if (!ended_) Lose_All();
}

void Client::Delete_Ports() {
  std::vector<int> ports;
  {
    const std::lock_guard lock(ports_);
    ports.swap(to_delete_);
  }
  for (const int port : ports) snd_seq_delete_simple_port(sequencer_, port);
}

bool Client::Read_Events() {
  for (;;) {
    snd_seq_event_t* event = nullptr;
    const int result = snd_seq_event_input(sequencer_, &event);
    if (result == -ENOSPC) {
      Break_All();
    } else if (result < 0) {
      return result == -EAGAIN || result == -EINTR;
    } else if (event != nullptr) {
      Take(*event);
    }
  }
}

void Client::Take(const snd_seq_event_t& event) {
  if (event.dest.port == announcements_) return Lose(event);
  if (event.type == SND_SEQ_EVENT_SYSEX) {
    return Receive(event.dest.port, {static_cast<const char*>(event.data.ext.ptr), event.data.ext.len});
  }
  std::array<unsigned char, Decoded_Size> bytes{};
  const long size = snd_midi_event_decode(decoder_, bytes.data(), static_cast<long>(bytes.size()), &event);
  if (size <= 0) return;
  Receive(event.dest.port, {reinterpret_cast<const char*>(bytes.data()), static_cast<std::size_t>(size)});
}

// An announcement: marks the destinations that have gone.
void Client::Lose(const snd_seq_event_t& event) {
  const snd_seq_addr_t gone = event.data.addr;
  const std::lock_guard lock(ports_);
  for (Destination* destination : destinations_) {
    const bool its_port = event.type == SND_SEQ_EVENT_PORT_EXIT && Same_Address(gone, destination->address);
    const bool its_client =
        event.type == SND_SEQ_EVENT_CLIENT_EXIT && gone.client == destination->address.client;
    if (its_port || its_client) destination->gone = true;
  }
}

void Client::Lose_All() {
  const std::lock_guard lock(ports_);
  lost_ = true;
  for (Destination* destination : destinations_) destination->gone = true;
}

void Client::Receive(int own_port, std::string_view bytes) {
  const std::lock_guard lock(ports_);
  for (const Origin* origin : origins_) {
    if (origin->own_port == own_port) origin->receiver(bytes);
  }
}

void Client::Break_All() {
  const std::lock_guard lock(ports_);
  for (const Origin* origin : origins_) origin->receiver(Midi::Break);
}

}  // namespace Alsa
