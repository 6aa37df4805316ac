#include <stdlib.h>
#include <string.h>

#include "items/unique_fd.h"
#include "tavik.h"

namespace {

constexpr uint32_t kStep = 1024;
constexpr int32_t kChunk = 4096;

constexpr char kLineFeed[] = "&#10;";
constexpr uint32_t kLineFeedLength = sizeof kLineFeed - 1;

void create_buffer(xml_data* doc) {
  doc->capacity = 0;
  doc->buffer = static_cast<char*>(malloc(kStep));
  if (doc->buffer == nullptr) return;
  doc->capacity = kStep;
  doc->length = 0;
}

// Makes room for so many bytes in all. A failure leaves the buffer to be used, and the capacity 0.
bool reserve(xml_data* doc, uint64_t needed) {
  if (needed <= doc->capacity) return true;
  doc->capacity = 0;
  const uint64_t capacity = (needed + kStep - 1) / kStep * kStep;
  if (capacity > UINT32_MAX) return false;
  auto* const grown = static_cast<char*>(realloc(doc->buffer, static_cast<size_t>(capacity)));
  if (grown == nullptr) return false;
  doc->buffer = grown;
  doc->capacity = static_cast<uint32_t>(capacity);
  return true;
}

void append(xml_data* doc, const void* data, size_t length) {
  if (doc == nullptr) return;
  if (doc->buffer == nullptr) create_buffer(doc);
  if (length == 0 || doc->buffer == nullptr) return;
  if (!reserve(doc, uint64_t{doc->length} + length)) return;
  char* const end = doc->buffer + doc->length;
  if (data != nullptr) {
    memcpy(end, data, length);
  } else {
    memset(end, 0, length);
  }
  doc->length += static_cast<uint32_t>(length);
}

const char* entity_of(char byte) {
  switch (byte) {
    case '\t':
      return "&#9;";
    case '\n':
      return kLineFeed;
    case '\r':
      return "&#13;";
    case '"':
      return "&quot;";
    case '&':
      return "&amp;";
    case '\'':
      return "&apos;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    default:
      return nullptr;
  }
}

void append_run(xml_data* doc, const char* start, const char* end) {
  if (end > start) append(doc, start, static_cast<size_t>(end - start));
}

bool ends_with_line_feed(const xml_data* doc) {
  return doc->length >= kLineFeedLength &&
         memcmp(doc->buffer + doc->length - kLineFeedLength, kLineFeed, kLineFeedLength) == 0;
}

}  // namespace

void xml_data_append(xml_data* doc, const void* data, int32_t len) {
  append(doc, data, len < 1 ? 0 : static_cast<size_t>(len));
}

void xml_data_str(xml_data* doc, const char* text) {
  append(doc, text, strlen(text));
}

void xml_data_txt(xml_data* doc, const char* text, uint32_t len) {
  const char* run = text;
  for (; len > 0 && *text != '\0'; --len, ++text) {
    const char* const entity = entity_of(*text);
    if (entity == nullptr) continue;
    append_run(doc, run, text);
    xml_data_str(doc, entity);
    run = text + 1;
  }
  append_run(doc, run, text);
}

int32_t xml_data_txt_fd(xml_data* doc, int32_t fd) {
  const tavik::UniqueFd file(fd);
  char chunk[kChunk];
  int64_t total = 0;
  int32_t got;
  while ((got = full_read_fd(file.get(), chunk, kChunk)) > 0) {
    xml_data_txt(doc, chunk, static_cast<uint32_t>(got));
    total += got;
  }
  if (total != 0 && ends_with_line_feed(doc)) {
    doc->length -= kLineFeedLength;
    --total;
  }
  return got < 0 || total > INT32_MAX ? -1 : static_cast<int32_t>(total);
}
