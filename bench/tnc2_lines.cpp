// Writes the packets that the decoders are measured with: tnc2_lines COUNT
#include <cstdio>
#include <string>

#include "bench/tnc2_lines.h"
#include "core/text_fields.h"

int main(int argc, char** argv) {
  const double count = argc > 1 ? zepril::Val(argv[1]) : 100000.0;
  zepril::Tnc2Lines lines;
  for (double i = 0.0; i < count; i += 1.0) {
    const std::string line = lines.Next() + "\n";
    std::fwrite(line.data(), 1, line.size(), stdout);
  }
  return 0;
}
