/* What a text takes as a short message in the GSM 7-bit alphabet (3GPP TS 23.038). */
#ifndef DEMO_SHORT_MESSAGE_H
#define DEMO_SHORT_MESSAGE_H

#include <stdint.h>

enum { SMS_SEPTETS = 160, SMS_PART_SEPTETS = 153 };

typedef struct sms_size sms_size;
struct sms_size {
  uint32_t septets;
  uint32_t messages; /* of SMS_SEPTETS, or several parts of SMS_PART_SEPTETS */
  char refused[64];  /* the characters that cannot be sent, each once, as far as there is room */
};

sms_size sms_measure(const char* text);

#endif
