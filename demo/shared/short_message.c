#include "shared/short_message.h"

#include <string.h>

#include "tavik.h"

static void refuse(sms_size* size, uint32_t character) {
  char bytes[4] = "";
  ucs2_to_utf8(bytes, sizeof bytes - 1, character);
  if (strstr(size->refused, bytes) != NULL) return;
  size_t used = strlen(size->refused);
  size_t room = sizeof size->refused - used;
  if (strlen(bytes) < room) strsncpy(size->refused + used, (uint32_t)room, bytes);
}

/* A character of the extension table is never split between two parts. */
sms_size sms_measure(const char* text) {
  sms_size size = {0, 1, ""};
  uint32_t used = 0;
  for (uint32_t c; (c = utf8_to_ucs2(&text, UINT32_MAX)) != 0;) {
    uint32_t septets = (uint32_t)check_ucs2_to_gsm(c);
    if (septets == 0) refuse(&size, c);
    if (used + septets > SMS_PART_SEPTETS) {
      size.messages++;
      used = 0;
    }
    used += septets;
    size.septets += septets;
  }
  if (size.septets <= SMS_SEPTETS) size.messages = 1;
  return size;
}
