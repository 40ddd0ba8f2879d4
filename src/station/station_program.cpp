// Hands every call on to the rooms.
#include "station/station_program.h"

#include <utility>

#include "station/station_rooms.h"

namespace zepril {

StationProgram::StationProgram(const Machine& machine, std::shared_ptr<SerialPort> modem)
    : rooms_(std::make_unique<StationRooms>(machine, std::move(modem))) {}

StationProgram::~StationProgram() = default;

bool StationProgram::Start(const std::string& program_folder, int colour_depth_bits) {
  return rooms_->Start(program_folder, colour_depth_bits);
}

void StationProgram::ModemWasNotSetUp() {
  rooms_->Links.Modem.WasNotSetUp();
}

void StationProgram::Stop(bool by_operator) {
  rooms_->Stop(by_operator);
}

bool StationProgram::EndWanted() const {
  return rooms_->End.Wanted;
}

void StationProgram::MapResized(int width, int height) {
  rooms_->MapResized(width, height);
}

RuntimeState& StationProgram::State() {
  return rooms_->State;
}

MainWindowControls& StationProgram::Controls() {
  return rooms_->Controls;
}

const StationSurfaces& StationProgram::Surfaces() const {
  return rooms_->Surfaces;
}

Timer& StationProgram::Timer1() {
  return rooms_->Timer1;
}

Timer& StationProgram::Timer2() {
  return rooms_->Timer2;
}

std::vector<DrivenTimer> StationProgram::Timers() {
  std::vector<DrivenTimer> timers{{&rooms_->Timer1, false}, {&rooms_->Timer2, true}};
  for (const DrivenTimer& timer : rooms_->Links.Timers())
    timers.push_back(timer);
  for (const DrivenTimer& timer : rooms_->Gps.Timers())
    timers.push_back(timer);
  return timers;
}

bool StationProgram::InTick() const {
  return rooms_->Cycle.InTick();
}

void StationProgram::SecondPassed() {
  rooms_->SecondPassed();
}

LinkLamp StationProgram::Lamp() const {
  return rooms_->Links.Watch.Lamp();
}

const ReceptionCounts& StationProgram::Counts() const {
  return rooms_->Reception.Pass.Counts();
}

}  // namespace zepril
