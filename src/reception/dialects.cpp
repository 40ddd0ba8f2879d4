// The rows of the dialects.
#include "reception/dialects.h"

#include "reception/agw_monitor.h"
#include "reception/pk232_monitor.h"
#include "reception/scs_monitor.h"

namespace zepril {
namespace {

const Dialect kDialects[] = {
    {"AGW", BringAgwText},
    {"PK-232", BringPk232Text},
    {"SCS TNC", BringScsTncText},
    {"SCS PTC", BringScsPtcText},
};

}  // namespace

const Dialect* DialectNamed(std::string_view name) {
  for (const Dialect& dialect : kDialects) {
    if (dialect.Name == name) return &dialect;
  }
  return nullptr;
}

}  // namespace zepril
