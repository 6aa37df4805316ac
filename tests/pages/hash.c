/* Prints the length of a new hash of the first argument, and whether it matches the second. */
#include <stdlib.h>
#include <string.h>

#include "tavik.h"

int main(int argc, char** argv) {
  char* hash = crypt_encode(0x31, argv[1], 1);
  int differ = argc != 3 || crypt_cmp(0x31, hash, argv[2]) != 0;
  printf("%u %s\n", (unsigned)strlen(hash), differ ? "differ" : "match");
  free(hash);
  return 0;
}
