/*
 * Who may do what is dangerous: one user, whose password the web server asks for. The password is
 * an item, and the server's files are made from its hash.
 */
#ifndef DEMO_ACCESS_H
#define DEMO_ACCESS_H

#include "tavik.h"

#define ACCESS_USER "admin"
#define ACCESS_FIRST_PASSWORD "first-login"
#define ACCESS_ITEM "adminpassword"
#define ACCESS_SAVED "saved" /* the folder in the state with the second copy of the password */

/*
 * Ends the page with status 403 unless the user is logged in, and as origin_guard() does. The
 * server has asked by then; a page that was left out of its configuration is not open to everybody.
 */
void access_guard(void);

/* The user who is logged in, or "-". */
const char* access_user(void);

/*
 * Writes what the web server knows of the stored password: httpd.conf for busybox, which names the
 * pages as well, and htpasswd for servers that read such a file. Each is in one piece at any time,
 * and stays as it was on failure. Result: 0; -1 with errno set, also if no hash is stored.
 */
int32_t access_configure(const char* state);

#endif
