/* Where the device's state lies. */
#ifndef DEMO_STATE_H
#define DEMO_STATE_H

/* The folder of the device's items. */
const char* state_folder(void);

#endif
