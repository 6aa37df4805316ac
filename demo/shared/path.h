/* Paths below the folder of the device's state. */
#ifndef DEMO_PATH_H
#define DEMO_PATH_H

enum { PATH_SIZE = 4096 };

/* Joins a folder and a name with "/"; what does not fit gives the empty path. */
void path_join(char path[PATH_SIZE], const char* folder, const char* name);

#endif
