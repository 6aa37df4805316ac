#include "shared/state.h"

#include <stdlib.h>

const char* state_folder(void) {
  const char* folder = getenv("TAVIK_DEMO_STATE");
  return folder != NULL ? folder : "/var/lib/tavik-demo";
}
