#include <cgicc/Cgicc.h>

#include <fstream>
#include <iostream>

#include "work.h"

int main() {
  cgicc::Cgicc form;
  std::ofstream sink("/dev/null");
  for (const cgicc::FormFile& file : form.getFiles()) file.writeToStream(sink);
  std::cout << HEADER "taken\r\n";
}
