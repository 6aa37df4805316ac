/* Loads the boot environment of an MTD device and looks names up: boot_env DEVICE [NAME ...] */
#include <tavik.h>

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  printf("result %d\n", (int)read_uboot_env(argv[1]));
  for (int i = 2; i < argc; i++) {
    const char* value = uboot_getenv(argv[i]);
    if (value == NULL) {
      printf("%s unset\n", argv[i]);
    } else {
      printf("%s=%s\n", argv[i], value);
    }
  }
  free_uboot_env();
  return 0;
}
