/* Controls for addresses. An invalid text leaves what is stored. */
#ifndef DEMO_ADDRESS_CONTROLS_H
#define DEMO_ADDRESS_CONTROLS_H

#include "shared/setting.h"

extern const control address_box;
extern const control netmask_box; /* of 8 to 30 bits */
extern const control route_box;   /* an address with its prefix */
extern const control mac_box;     /* refuses an address that no interface can have */

#endif
