/*
 * "Administration": a new password for the administrator. The page is behind the login whose
 * password it changes, and the web server asks for the new one from the next request on.
 */
#include <signal.h>

#include "shared/access.h"
#include "shared/device_log.h"
#include "shared/page.h"
#include "shared/path.h"
#include "shared/request.h"
#include "shared/told.h"

enum { LEAST_CHARACTERS = 8, MOST_CHARACTERS = 64 };

/* Behind the library's codes. */
enum { NOT_STORED = PW_STATUS_BAD_CHAR + 1, NOT_IN_FORCE, STATUS_COUNT };

static const message messages[STATUS_COUNT] = {
    [PW_STATUS_CHANGED] = {"The password was changed. It is the one to log in with from now on.",
                           0},
    [PW_STATUS_NO_HASH] = {"The password could not be encrypted. It stays as it was.", 1},
    [PW_STATUS_BAD_OLD] = {"The present password is not right. It stays as it was.", 1},
    [PW_STATUS_MISMATCH] = {"The two new passwords differ. The present one stays.", 1},
    [PW_STATUS_BAD_LENGTH] = {"A password has 8 to 64 characters. The present one stays.", 1},
    [PW_STATUS_BAD_CHAR] =
        {"A password has only the characters named below. The present one stays.", 1},
    [NOT_STORED] = {"The password could not be stored. The old one still counts.", 1},
    [NOT_IN_FORCE] =
        {"The password was stored, but the server goes on asking for the old one until "
         "it is started anew.",
         1},
};

/* What the form sent, as texts that live as long as its handler runs. */
static uint32_t change(const char* present, const char* first, const char* again) {
  char saved[PATH_SIZE];
  passwd_state state;
  passwd_entry entry = {0, present, 0, NULL, 0, NULL};
  path_join(saved, state_folder(), ACCESS_SAVED);
  rd_passwd(state_folder(), ACCESS_ITEM, &state, 0);
  entry.new_status = chk_new_passwd(first, &entry.new_text, LEAST_CHARACTERS, MOST_CHARACTERS);
  entry.repeat_status =
      chk_new_passwd(again, &entry.repeat_text, LEAST_CHARACTERS, MOST_CHARACTERS);
  update_pw(&entry, &state, saved, 1);
  if (state.status != PW_STATUS_CHANGED) return (uint32_t)state.status;
  rd_passwd(state_folder(), ACCESS_ITEM, &state, 0);
  if (crypt_cmp(state.scheme, state.stored, first) != 0) return NOT_STORED;
  if (access_configure(state_folder()) < 0) return NOT_IN_FORCE;
  return signal_process(state_folder(), "serverpid", SIGHUP) == 0 ? PW_STATUS_CHANGED
                                                                  : NOT_IN_FORCE;
}

/* A field that was not sent is as wrong as an empty one. */
static const char* entered(const cgi_attr* attrs, int32_t count, const char* name) {
  const char* text = request_value(attrs, count, name);
  return text != NULL ? text : "";
}

static int32_t take(void* context, cgi_attr* attrs, int32_t count, int32_t kind) {
  uint32_t* status = context;
  if (kind != CGI_KIND_FORM) return 0;
  *status = change(entered(attrs, count, "present"), entered(attrs, count, "new"),
                   entered(attrs, count, "again"));
  if (*status != PW_STATUS_NONE) device_log("administration: %s", messages[*status].text);
  return 0;
}

static void print_field(const char* name, const char* label, const char* autocomplete) {
  page_label(name, label);
  gen_xtextbox(MOST_CHARACTERS, NULL, PF_PASSWORD,
               " id=\"%s\" name=\"%s\" autocomplete=\"%s\" required", name, name, autocomplete);
  page_field_end();
}

int main(void) {
  uint32_t told = PW_STATUS_NONE;
  access_guard();
  getcgivars(&told, take, request_is_post() ? NULL : told_read);
  if (request_is_post()) {
    told_redirect("administration", told);
    return 0;
  }
  page_begin("administration", "Administration");
  told_print(told, messages, STATUS_COUNT);
  html_printf(1, "<p>You are logged in as <strong>%s</strong>.</p>\r\n", access_user());
  page_form("administration");
  print_field("present", "Present password", "current-password");
  print_field("new", "New password", "new-password");
  print_field("again", "New password again", "new-password");
  html_printf(1, "<p class=\"quiet\">8 to 64 characters of %s</p>\r\n", passwd_chars());
  page_form_end("Save");
  page_end();
  return 0;
}
