#include <cgicc/Cgicc.h>

#include <cstdlib>
#include <iostream>

extern "C" {
#include "plain.h"
}
#include "work.h"

int main() {
  cgicc::Cgicc form;
  for (const cgicc::FormEntry& entry : form.getElements()) {
    if (entry.getName().compare(0, 5, "field") != 0) continue;
    plain_update(getenv(STATE_VARIABLE), entry.getName().c_str(), entry.getValue().c_str());
  }
  std::cout << HEADER "saved\r\n";
}
