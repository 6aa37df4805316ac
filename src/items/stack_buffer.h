// Short-lived buffers whose size is known only at run time. They live on the stack, so that they
// cannot fail and a page needs no heap for its items; the build probes the stack page by page.
#ifndef TAVIK_ITEMS_STACK_BUFFER_H
#define TAVIK_ITEMS_STACK_BUFFER_H

// A macro, since the buffer belongs to the frame of the function that asks for it. Not for loops.
#define TAVIK_STACK_BUFFER(size) (static_cast<char*>(__builtin_alloca(size)))

#endif
