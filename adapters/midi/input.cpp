#include "adapters/midi/input.h"

#include <algorithm>
#include <utility>

namespace Midi {

Input::Input(Midi_Receiver receiver, Poster post)
    : post_(std::move(post)), state_(std::make_shared<State>()) {
  state_->receiver = std::move(receiver);
}

Input::~Input() {
  source_.reset();
  Reset();
}

bool Input::Open(Backend& backend, const Port& port) {
  source_ = backend.Open_Input(port, [this](std::string_view bytes) { Take_Bytes(bytes); });
  return source_ != nullptr;
}

int Input::Add_Buffer(MIDI_Header& header) {
  if ((header.flags & Header_Prepared) == 0) return Midi_Unprepared;
  if (Has_Buffer(header)) return Midi_Still_Playing;
  header.flags &= ~Header_Done;
  header.bytes_recorded = 0;
  state_->buffers.push_back(&header);
  return Midi_Ok;
}

bool Input::Has_Buffer(const MIDI_Header& header) const {
  return std::find(state_->buffers.begin(), state_->buffers.end(), &header) != state_->buffers.end();
}

void Input::Start() {
  if (state_->run != 0) return;
  state_->run = ++state_->runs;
  source_->Started();
}

void Input::Reset() {
  state_->run = 0;
  for (MIDI_Header* header : state_->buffers) header->flags |= Header_Done;
  state_->buffers.clear();
}

void Input::Take_Bytes(std::string_view bytes) {
  assembler_.Put(bytes, [this](std::string&& message) {
    const unsigned run = state_->run;
    if (run == 0) return;
    post_([state = state_, run, message = std::move(message)]() mutable { Deliver(state, run, message); });
  });
}

void Input::Deliver(const std::shared_ptr<State>& state, unsigned run, std::string& message) {
  if (state->run != run) return;
  const auto fits = [&message](const MIDI_Header* header) { return header->buffer_length >= message.size(); };
  const auto found = std::find_if(state->buffers.begin(), state->buffers.end(), fits);
  if (found == state->buffers.end()) return;
  MIDI_Header& header = **found;
  state->buffers.erase(found);
  header.bytes_recorded = static_cast<std::uint32_t>(message.size());
  header.data = std::move(message);
  header.flags |= Header_Done;
  state->receiver(header);  // it may close the input; the post holds the state until it has ended
}

}  // namespace Midi
