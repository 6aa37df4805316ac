/* The certificate files of the device, which lie in a folder of its state. */
#ifndef DEMO_CERTIFICATE_STORE_H
#define DEMO_CERTIFICATE_STORE_H

#include "tavik.h"

enum { CERTIFICATE_NAME_BYTES = 120 };

/* The folder's path, which ends in "/". */
const char* certificate_folder(void);

/*
 * Whether a file may have this name. The tool that describes certificates gets the name between
 * double quotes on a command line, so that a name with a character that means something there never
 * comes to be.
 */
int32_t certificate_name_fits(const char* name);

/* The position of a name in a listing; -1 if it is not there. */
int32_t certificate_position(const cert_dir* listing, const char* name);

/*
 * Deletes a file. A fresh listing is the only source of names: what is not in it cannot be deleted.
 * Result: 1 if the file has gone, 0 if it is still there, -1 for a name that is none.
 */
int32_t certificate_delete(const char* name);

#endif
