// Sound files of packets, and the engine that hears and writes them.
#include "tests/integration/engine_support.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string_view>

#include "core/text_fields.h"

namespace zepril {
namespace {

constexpr std::uint32_t kSamplesPerSecond = 44100;
constexpr int kChannels = 2;
constexpr std::size_t kSampleBytes = 2;
constexpr std::size_t kFrameBytes = kSampleBytes * kChannels;
constexpr std::size_t kWavHeader = 44;

std::string LittleEndian(std::uint32_t value, int bytes) {
  std::string text;
  for (int at = 0; at < bytes; ++at, value >>= 8)
    text += Chr(static_cast<int>(value & 0xFF));
  return text;
}

// 16-bit samples of one channel as a sound file.
std::string WavOf(const std::string& samples) {
  constexpr auto kBytes = static_cast<std::uint32_t>(kSampleBytes);
  const auto length = static_cast<std::uint32_t>(samples.size());
  return "RIFF" + LittleEndian(length + 36, 4) + "WAVEfmt " + LittleEndian(16, 4) +
         LittleEndian(1, 2) + LittleEndian(1, 2) + LittleEndian(kSamplesPerSecond, 4) +
         LittleEndian(kSamplesPerSecond * kBytes, 4) + LittleEndian(kBytes, 2) +
         LittleEndian(8 * kBytes, 2) + "data" + LittleEndian(length, 4) + samples;
}

std::string SamplesOf(const std::string& stereo, int channel) {
  std::string samples;
  const std::size_t from = static_cast<std::size_t>(channel) * kSampleBytes;
  for (std::size_t at = 0; at + kFrameBytes <= stereo.size(); at += kFrameBytes)
    samples += stereo.substr(at + from, kSampleBytes);
  return samples;
}

// Without what sets colours on a terminal.
std::string Plain(std::string text) {
  for (std::size_t at = text.find('\x1B'); at != std::string::npos; at = text.find('\x1B', at)) {
    const std::size_t end = text.find_first_of("mJ", at);
    text.erase(at, end == std::string::npos ? end : end - at + 1);
  }
  return text;
}

// The packets among the lines of the decoder: "[0] CALL>DESTINATION:text".
std::vector<std::string> PacketsOf(const std::string& printed) {
  constexpr std::string_view kMark = "[0] ";
  std::vector<std::string> packets;
  for (std::size_t at = 0; at < printed.size();) {
    const std::size_t end = std::min(printed.find('\n', at), printed.size());
    const std::string line = printed.substr(at, end - at);
    if (line.starts_with(kMark)) packets.push_back(line.substr(kMark.size()));
    at = end + 1;
  }
  return packets;
}

}  // namespace

std::string ReadWhole(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

std::string MissingOfTheEngine() {
  for (const char* program : {"direwolf", "gen_packets", "atest"}) {
    if (!IsInstalled(program)) return program;
  }
  return {};
}

Engine::Engine(const TempFolder& folder) : folder_(folder), Port(FreePort()) {
  // Pauses before and behind a transmission as short as they go.
  const std::string channel =
      "MYCALL N0DW\nMODEM 1200\nTXDELAY 10\nTXTAIL 5\nPERSIST 255\nSLOTTIME 1\n";
  std::ofstream(folder.Sub("engine.conf"))
      << "ADEVICE stdin tofile\nARATE 44100\nACHANNELS 2\n"
      << "CHANNEL 0\n"
      << channel << "CHANNEL 1\n"
      << channel << "AGWPORT " << WholeNumber(Port) << "\nKISSPORT 0\n";
  // A sound card that is a file.
  const std::string card = folder.Sub("card.conf");
  std::ofstream(card) << "pcm.null { type null }\npcm.tofile { type file slave.pcm null file \""
                      << folder.Sub("air.raw") << "\" format raw }\n";
  const std::string pipe = folder.Sub("sound");
  ::mkfifo(pipe.c_str(), 0600);
  // Held open for writing too, so that the engine never sees an end.
  sound_ = ::open(pipe.c_str(), O_RDWR | O_CLOEXEC);
  ::setenv("ALSA_CONFIG_PATH", card.c_str(), 1);
  child_ =
      std::make_unique<ChildProcess>(std::vector<std::string>{"direwolf", "-t", "0", "-d", "a",
                                                              "-c", folder.Sub("engine.conf"), "-"},
                                     sound_, folder.Sub("engine.log"));
  ::unsetenv("ALSA_CONFIG_PATH");
}

Engine::~Engine() {
  child_->End();
  ::close(sound_);
}

bool Engine::Play(const std::string& packet) {
  std::ofstream(folder_.Sub("packet"), std::ios::binary) << packet;
  const std::string wav = folder_.Sub("packet.wav");
  const std::string command = "gen_packets -r 44100 -o '" + wav + "' - <'" + folder_.Sub("packet") +
                              "' >'" + folder_.Sub("gen.log") + "' 2>&1";
  if (std::system(command.c_str()) != 0) return false;
  constexpr std::size_t kPauseSamples = kSamplesPerSecond / 5;
  const std::string samples = ReadWhole(wav).substr(kWavHeader);
  std::string stereo;
  for (std::size_t at = 0; at + 1 < samples.size(); at += 2) {
    stereo.append(2, '\0');
    stereo += samples.substr(at, 2);
  }
  stereo.append(kFrameBytes * kPauseSamples, '\0');
  for (std::size_t at = 0; at < stereo.size();) {
    const ssize_t written = ::write(sound_, stereo.data() + at, stereo.size() - at);
    if (written <= 0) return false;
    at += static_cast<std::size_t>(written);
  }
  return true;
}

// The decoder listens to one channel only.
std::vector<OnAir> Engine::Transmitted() const {
  const std::string stereo = ReadWhole(folder_.Sub("air.raw"));
  const std::string wav = folder_.Sub("air.wav");
  const std::string printed = folder_.Sub("atest.log");
  const std::string command = "atest '" + wav + "' >'" + printed + "' 2>&1";
  std::vector<OnAir> all;
  for (int channel = 0; channel < kChannels; ++channel) {
    std::ofstream(wav, std::ios::binary) << WavOf(SamplesOf(stereo, channel));
    if (std::system(command.c_str()) != 0) continue;
    for (const std::string& packet : PacketsOf(Plain(ReadWhole(printed))))
      all.push_back({channel, packet});
  }
  return all;
}

}  // namespace zepril
