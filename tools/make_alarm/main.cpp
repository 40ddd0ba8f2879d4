// make_alarm FILE: writes the sound of an emergency, two tones in turn, as a WAV file.
//
// Whole numbers only, so that every computer writes the same bytes.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <string>

namespace {

constexpr int kRate = 11025;  // samples a second, 16 bits, one channel
constexpr int kToneSamples = kRate / 4;
constexpr int kTones = 10;
constexpr int kRampSamples = kRate / 100;  // in and out, so that nothing clicks
constexpr int kHigh = 960;                 // Hz
constexpr int kLow = 640;
constexpr int kLoudness = 24000;  // of 32767

void Put(std::string& bytes, std::uint32_t value, int count) {
  for (int at = 0; at < count; ++at)
    bytes += static_cast<char>(value >> (8 * at) & 0xFF);
}

// A sine of `phase` in 65536ths of a turn, by parabolas: -32768 to 32768.
int Wave(std::uint32_t phase) {
  const int half = static_cast<int>(phase & 0x7FFF);
  const int height = half * (0x8000 - half) / 0x2000;
  return (phase & 0x8000) != 0 ? -height : height;
}

std::string Tone(int hertz) {
  std::string samples;
  for (int at = 0; at < kToneSamples; ++at) {
    const int ramp = std::min({at, kToneSamples - at, kRampSamples});
    const auto phase = static_cast<std::uint32_t>(std::int64_t{65536} * hertz * at / kRate);
    const std::int64_t level = std::int64_t{Wave(phase)} * kLoudness / 0x8000 * ramp / kRampSamples;
    Put(samples, static_cast<std::uint32_t>(level), 2);
  }
  return samples;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("make_alarm FILE\n", stderr);
    return 2;
  }
  std::string samples;
  for (int tone = 0; tone < kTones; ++tone)
    samples += Tone(tone % 2 == 0 ? kHigh : kLow);
  std::string file = "RIFF";
  Put(file, static_cast<std::uint32_t>(36 + samples.size()), 4);
  file += "WAVEfmt ";
  Put(file, 16, 4);
  Put(file, 1, 2);  // plain samples
  Put(file, 1, 2);  // channels
  Put(file, kRate, 4);
  Put(file, kRate * 2, 4);
  Put(file, 2, 2);
  Put(file, 16, 2);
  file += "data";
  Put(file, static_cast<std::uint32_t>(samples.size()), 4);
  std::ofstream out(argv[1], std::ios::binary);
  out << file << samples;
  return out.good() ? 0 : 1;
}
