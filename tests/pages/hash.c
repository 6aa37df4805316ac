/* Prints a new hash of the first argument, and whether it matches the second. */
#include <stdlib.h>

#include "tavik.h"

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  char* hash = crypt_encode(0x31, argv[1], 1);
  printf("%s %s\n", hash, crypt_cmp(0x31, hash, argv[2]) == 0 ? "match" : "differ");
  free(hash);
  return 0;
}
