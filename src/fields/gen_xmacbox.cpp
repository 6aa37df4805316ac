#include "fields/address_box.h"
#include "fields/mac_address.h"
#include "fields/open_tag.h"
#include "output/close_tag.h"
#include "tavik.h"

namespace {

// One more than the text takes.
constexpr uint32_t kBoxLength = tavik::kMacLength + 1;

}  // namespace

void gen_xmacbox(int32_t size, const struct sockaddr* address, uint32_t flags, const char* format,
                 ...) {
  if (address == nullptr) return;
  char text[tavik::kMacLength + 1];
  tavik::open_text_input();
  tavik::print_maxlength(kBoxLength, flags);
  tavik::print_size(size, kBoxLength);
  printf(" value=\"%s\"", mac_ntop(address, '-', text, sizeof text));
  va_list arguments;
  va_start(arguments, format);
  tavik::close_tag(flags, format, arguments);
  va_end(arguments);
}
