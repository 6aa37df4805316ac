/*
 * A setting of the device: an item, and the control by which a person sees and changes it. The
 * kinds of controls stand in the files *_controls.h.
 */
#ifndef DEMO_SETTING_H
#define DEMO_SETTING_H

#include "tavik.h"

typedef struct setting setting;

/* A kind of control. */
typedef struct control control;
struct control {
  void (*print)(const setting* about); /* without the label */
  /* Answers like update_item(); null for what takes more than one value of a form. */
  int32_t (*store)(const setting* about, const char* text);
  int32_t several; /* whether it prints several controls, each with a label of its own */
};

/* What of it is zero takes no part. */
struct setting {
  const char* name;       /* of the item and of the control */
  const char* label;      /* as a person reads it */
  const control* control; /* null for a text field */
  /* Of texts. The maximum is in characters; it counts for number fields as well. */
  int32_t maximum;
  uint32_t flags; /* print flags */
  textbox_filter filter;
  /* Of numbers. Values beyond the first two become the nearer one, what is no number the third. */
  struct {
    uint32_t least, most, usual;
  } limits;
  /* Of numbered choices: their labels, ended by null. */
  const char* const* choices;
  /* Of text selects: the rows, and the value that any other value counts as. */
  selectbox_text_row row;
  const char* fallback;
};

/* Prints a field: the label and the control. */
void setting_print(const setting* about);

/* Stores a value that a form has sent for a setting, as its control does. */
int32_t setting_store(const setting* about, const char* text);

#endif
