#include "plain.h"

#ifdef BENCH_FCGI
#include <fcgi_stdio.h>
#else
#include <stdio.h>
#endif
#include <fcntl.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

static int open_item(const char* state, const char* name, int flags) {
  char path[512];
  snprintf(path, sizeof path, "%s/%s", state, name);
  return open(path, flags);
}

int plain_read(const char* state, const char* name, char* value, int size) {
  int fd = open_item(state, name, O_RDONLY);
  value[0] = '\0';
  if (fd < 0) return -1;
  int length = 0;
  ssize_t got = 0;
  while (length < size && (got = read(fd, value + length, (size_t)(size - length))) > 0) {
    length += (int)got;
  }
  close(fd);
  if (got < 0) return -1;
  value[length] = '\0';
  value[strcspn(value, "\r\n")] = '\0';
  return (int)strlen(value);
}

void plain_update(const char* state, const char* name, const char* value) {
  char stored[512];
  char line[512];
  if (plain_read(state, name, stored, sizeof stored - 1) < 0 || strcmp(stored, value) == 0) return;
  int length = snprintf(line, sizeof line, "%s\n", value);
  int fd = open_item(state, name, O_WRONLY | O_TRUNC);
  if (fd < 0) return;
  if (write(fd, line, (size_t)length) < 0) perror(name);
  close(fd);
}

static unsigned decode_utf8(const unsigned char** at) {
  unsigned lead = *(*at)++;
  if (lead < 0x80) return lead;
  int more = lead >= 0xE0 ? 2 : 1;
  unsigned character = lead & (lead >= 0xE0 ? 0x0F : 0x1F);
  for (; more > 0 && **at >= 0x80; more--) character = character << 6 | (*(*at)++ & 0x3F);
  return character;
}

void plain_escape(const char* value) {
  const unsigned char* at = (const unsigned char*)value;
  while (*at != '\0') {
    unsigned character = decode_utf8(&at);
    switch (character) {
      case '"':
        fputs("&quot;", stdout);
        break;
      case '&':
        fputs("&amp;", stdout);
        break;
      case '<':
        fputs("&lt;", stdout);
        break;
      case '>':
        fputs("&gt;", stdout);
        break;
      default:
        if (character < 0x7F) {
          putchar((int)character);
        } else {
          printf("&#%u;", character);
        }
    }
  }
}

static void unescape(char* text) {
  char* out = text;
  for (; *text != '\0'; text++) {
    if (*text == '%' && text[1] != '\0' && text[2] != '\0') {
      char digits[3] = {text[1], text[2], '\0'};
      *out++ = (char)strtoul(digits, NULL, 16);
      text += 2;
    } else {
      *out++ = *text == '+' ? ' ' : *text;
    }
  }
  *out = '\0';
}

void plain_decode(char* form, void (*take)(const char* name, const char* value)) {
  for (char *rest = form, *pair; (pair = strsep(&rest, "&")) != NULL;) {
    char* value = strchr(pair, '=');
    if (value == NULL) continue;
    *value++ = '\0';
    unescape(pair);
    unescape(value);
    take(pair, value);
  }
}
