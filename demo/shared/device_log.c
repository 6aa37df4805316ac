#include "shared/device_log.h"

#include <time.h>

#include "shared/access.h"
#include "shared/path.h"
#include "shared/state.h"

enum { LOG_SIZE = 64 << 10 };

void device_log(const char* format, ...) {
  char path[PATH_SIZE];
  char old[PATH_SIZE];
  char stamp[32] = "";
  time_t now = time(NULL);
  path_join(path, state_folder(), DEVICE_LOG);
  path_join(old, state_folder(), DEVICE_LOG_OLD);
  FILE* file = fopen(path, "a");
  if (file == NULL) return;
  strftime(stamp, sizeof stamp, "%Y-%m-%dT%H:%M:%SZ", gmtime(&now));
  fprintf(file, "%s %s: ", stamp, access_user());
  va_list arguments;
  va_start(arguments, format);
  vfprintf(file, format, arguments);
  va_end(arguments);
  fputc('\n', file);
  long size = ftell(file);
  fclose(file);
  if (size > LOG_SIZE) rename(path, old);
}
