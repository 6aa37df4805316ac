/*
 * tavik.h - what the page programs of a device's web interface have in common
 *
 * A page program is a CGI executable: the web server starts one for each request. This library
 * takes the request apart, prints HTML and JSON, cleans and checks what was submitted, and keeps
 * each setting in an item, a small text file that is rewritten only when its value changes.
 *
 * General rules. A function's own comment tells only what is its own.
 *
 * Text      Texts are NUL-terminated UTF-8. A character is one 16-bit Unicode value (UCS-2), 1 to 3
 *           bytes of UTF-8; characters beyond U+FFFF do not exist here, and their bytes count as
 *           invalid and drop out of what is printed and stored. Bytes compare as unsigned.
 * Sizes     Sizes, counts and limits of items, buffers and files are in bytes. The maxima and
 *           minima of form fields are in characters; a maximum of n takes 3 x n bytes. A buffer
 *           that goes with a count holds count + 1 bytes. A negative size or count is 0.
 * Null      A null pointer where a value is needed makes a function do nothing and return its
 *           failure, or 0 where it counts; printing a null text prints nothing. Pointers declared
 *           nonnull are the exception: they are not tested.
 * Results   A function that can fail returns int32_t: negative is failure, mostly -1. errno is as
 *           the failing system call left it. There are no messages, but for the fatal ones of
 *           getcgivars(), and where a function's comment tells of one.
 * Memory    What a function hands out on the heap belongs to the caller, who releases it with
 *           free(). Texts and records handed to a callback live until the callback returns.
 *           Records passed in belong to the caller, who clears them (all bytes 0) before first use.
 * Output    Everything printed goes to the C library's stdout stream, so it mixes freely with
 *           printf(). Print functions count bytes written, not characters. Text of users and items
 *           is escaped; literal markup, names, and all that a printf format of the page yields go
 *           out as they are. The library prints no HTTP header but in front of a fatal message.
 * Flags     A word of PF_ bits goes along with most printing. Functions ignore the bits that are
 *           not theirs, so that one word can be passed on from function to function.
 * Items     An item is addressed by a directory and a name, joined with exactly one "/". It is
 *           replaced in place and nothing is locked: another process can see it empty for a moment.
 *           Paths, and values being stored or compared, take their size in bytes of stack.
 * Process   No set-up, no threads, no state between calls but where a comment tells of it.
 *           Descriptors and streams are closed by the function that opened them, on every path.
 */
#ifndef TAVIK_H
#define TAVIK_H

#include <netinet/in.h>
#include <stdarg.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

#define TAVIK_VERSION_MAJOR 1
#define TAVIK_VERSION_MINOR 0
#define TAVIK_VERSION_PATCH 0
#define TAVIK_VERSION "1.0.0"

#define TAVIK_API __attribute__((visibility("default")))
#define TAVIK_PRINTF(text, first) __attribute__((format(printf, text, first)))
#define TAVIK_NONNULL(...) __attribute__((nonnull(__VA_ARGS__)))

#ifdef __cplusplus
extern "C" {
#endif

/* ============================================================================================
 * Request intake
 *
 * The CGI environment and the request body, decoded into records for the page's handler.
 * ========================================================================================= */

/* One decoded name and value. The texts are writable and live until the handler returns. */
typedef struct cgi_attr cgi_attr;
struct cgi_attr {
  cgi_attr* parent; /* the record of the header line of which this is an attribute, else null */
  char* name;       /* never null, may be empty */
  char* value;      /* never null, may be empty */
};

/* Where the records that a cgi_handler gets come from. */
enum {
  CGI_KIND_QUERY = 0,      /* the query string of a GET or HEAD request */
  CGI_KIND_POST_QUERY = 1, /* the query string of a POST request */
  CGI_KIND_FORM = 2,       /* a body of type application/x-www-form-urlencoded */
  CGI_KIND_MULTIPART = 3   /* a body of type multipart/form-data */
};

/*
 * The page's callback: context is the first argument of getcgivars(), attrs the first of count
 * records. What its result does is told at getcgivars().
 */
typedef int32_t (*cgi_handler)(void* context, cgi_attr* attrs, int32_t count, int32_t kind);

/*
 * Takes the request apart and hands its variables to the page's handlers. Called once, before
 * anything else reads standard input.
 *
 * GET and HEAD: QUERY_STRING is decoded for query_handler, or for body_handler if that is null,
 * with CGI_KIND_QUERY. POST: if query_handler is not null it gets QUERY_STRING first, with
 * CGI_KIND_POST_QUERY, and a negative result ends the request there; then body_handler gets the
 * body. One of type application/x-www-form-urlencoded, without parameters, comes in one call with
 * CGI_KIND_FORM: at most CONTENT_LENGTH bytes are read from descriptor 0, and a body that ends
 * sooner is decoded as far as it came. One of type multipart/form-data whose first parameter is the
 * boundary comes part by part with CGI_KIND_MULTIPART; of its CONTENT_LENGTH it only counts that it
 * is not 0.
 *
 * Pairs are separated by "&" or ";", also where that makes an empty pair, and split at their first
 * "="; "+" is a space, and "%" with two digits is a byte, resolved last. Two bytes that are no
 * hexadecimal digits give some byte all the same, "%" with fewer than two bytes behind it ends the
 * text, and "%00" ends it for all who read it as a C string. An empty text calls no handler.
 *
 * The calls for a multipart body (RFC 7578). Each part's body stays on descriptor 0, and the
 * handler takes it off with scan_boundary():
 *
 *   Call                 Records                            Result
 *   once, first          "boundary" alone: count 1          ignored
 *   for each part that   "boundary" and the part's header   0: go on with the next part; any other:
 *   has header lines     lines: count 2 to 6                this was the last
 *   once, last           null: count 0                      that of getcgivars()
 *
 * "boundary" is all that follows "boundary=" in CONTENT_TYPE, quotes included. A header line that
 * begins with "Content-", in any case, is a record of the text ahead of ":" and that up to ";";
 * each attribute that follows is one of its name and what stands in its double quotes, byte for
 * byte. The first without them ends the line. Other lines, and what exceeds 6 records, are dropped.
 * Behind the fifth header line the body begins; a line of more than 1022 bytes takes the rest of
 * the input with it. The last call comes also when the input has broken off. A handler that answers
 * 0 and leaves the body has it read as header lines. Parts without header lines are skipped,
 * without a handler all are.
 *
 * Either handler may be null. What cannot be served prints a plain-text page with one line of
 * message and ends the process with exit(1): REQUEST_METHOD unset or none of the three; on a POST a
 * CONTENT_TYPE that is none of the two above, a CONTENT_LENGTH of 0, no memory for the body (every
 * negative length, if it is URL-encoded) or for a header line, or a read error.
 *
 * Result: the handler's result; 0 if the text was empty or could not be copied; the number of pairs
 * if there is no handler or no memory for the records, but 0 for a multipart body without a
 * handler. For a POST it is that of the body, or query_handler's if negative.
 */
TAVIK_API int32_t getcgivars(void* context, cgi_handler body_handler, cgi_handler query_handler);

/* ---- Uploads ------------------------------------------------------------------------------- */

/*
 * Takes a piece of a part's body: argument is the one given to scan_boundary(), length may be 0.
 * The data live until it returns; the result is ignored.
 */
typedef int32_t (*mpart_sink)(void* argument, const void* data, uint32_t length);

/*
 * Takes the body of a part off a descriptor, which is 0 for a request, and hands it to the sink,
 * byte for byte and in order, in pieces of any size; an empty body is one piece of length 0. It
 * ends at the delimiter: CR LF, "--" and the boundary, which is the text up to its first CR. The
 * descriptor then stands behind the delimiter's line, or behind four bytes of it if the part was
 * the last, and not one byte further. The sink may be null. Nothing is kept in memory but about one
 * kilobyte on the stack.
 *
 * Result: 0 if another part follows; end_code if this was the last, which is every delimiter with
 * something else than CR LF behind it; 2 if the input ended or could not be read, with up to
 * boundary + 3 bytes of its end not delivered. 2 also for a null boundary and for one of no byte or
 * more than 1020, which delimits nothing: nothing is read then.
 */
TAVIK_API int32_t scan_boundary(int32_t fd, const char* boundary, uint32_t end_code,
                                mpart_sink sink, void* argument);

/*
 * Reads a line that ends in CR LF into a buffer of size bytes, without the CR LF and terminated,
 * and not one byte further. A CR or LF alone belongs to the line. One longer than size - 2 bytes
 * takes all the rest of the input with it.
 *
 * Result: the line's length in bytes, 0 for an empty one; 0 also at the end of the input and
 * negative on a read error, when buffer is not terminated; -1 if size is below 2.
 */
TAVIK_API int32_t full_line_read_fd(int32_t fd, char* buffer, uint32_t size);

/*
 * An mpart_sink that writes to a stream: argument is the FILE.
 *
 * Result: 0, also if the data could not be written; -1 for a null stream.
 */
TAVIK_API int32_t mpart_fwrite(void* stream, const void* data, uint32_t length);

/*
 * An mpart_sink that writes to a descriptor: argument points to it, an int32_t. One of 0 or less
 * drops the data.
 *
 * Result: 0, also if the data could not be written; -1 for a null pointer.
 */
TAVIK_API int32_t mpart_write_fd(void* fd, const void* data, uint32_t length);

/*
 * Reduces a file name sent by a browser to its last component: what follows the last backslash, and
 * of that what follows the last "/". Nothing else is looked at: "..", and the empty text, can be
 * the outcome.
 *
 * Result: a pointer into path; null for null.
 */
TAVIK_API const char* valid_filename(const char* path);

/* ============================================================================================
 * Page output
 *
 * UTF-8 text by character, and printing: plain, byte for byte, or escaped for HTML. Escaped
 * output is pure ASCII: the four markup characters and everything from U+007F on become character
 * references, named ones for the four and for U+00A0 to U+00FF.
 * ========================================================================================= */

/*
 * Takes the next character off a text. The cursor moves behind what was taken.
 *
 * limit is the number of bytes that may be read; UINT32_MAX stands for NUL-terminated text. 0 is
 * the answer both at the end of the text, where the cursor stays on the NUL, and for an invalid
 * sequence, where it moves on: a stray or four-byte lead byte is stepped over alone, a sequence
 * broken by an ASCII byte is stepped over with that byte, one broken by the NUL stops in front of
 * it. A sequence cut by the limit leaves the cursor where it was. Overlong forms and surrogates are
 * decoded like any others.
 *
 * Result: the character; 0 if there is none or cursor, or what it points to, is null.
 */
TAVIK_API uint32_t utf8_to_ucs2(const char** cursor, uint32_t limit);

/*
 * Writes one character below 0x10000 as UTF-8, without a terminator, if all its bytes fit in room.
 *
 * Result: the position behind the bytes written; out itself if they did not fit and nothing was
 * written; null if out is null.
 */
TAVIK_API char* ucs2_to_utf8(char* out, uint32_t room, uint32_t character);

/*
 * Counts the characters of a text, at most limit of them. An invalid sequence ends the count, with
 * limit as the result: invalid text reads as full.
 *
 * bytes, unless null, gets the distance from the start to where the count stopped, behind an
 * invalid sequence if there was one: the place at which to cut the text at a character boundary.
 *
 * Result: the characters counted, or limit. A null text gives 0 and leaves bytes alone.
 */
TAVIK_API uint32_t utf8_length(const char* text, uint32_t limit, uint32_t* bytes);

/*
 * Copies a text into a destination of size bytes and terminates it. No padding is added.
 *
 * Result: the length copied; -1 if the text was cut to size - 1 bytes, if size is 0, or if a
 * pointer is null, when nothing is written.
 */
TAVIK_API int32_t strsncpy(char* destination, uint32_t size, const char* source);

/*
 * Prints length bytes as they are, up to the first that cannot be written.
 *
 * Result: the bytes written.
 */
TAVIK_API uint32_t print_mem(const void* data, uint32_t length);

/*
 * Prints a text as it is.
 *
 * Result: the bytes written.
 */
TAVIK_API uint32_t print_str(const char* text);

/*
 * Prints a text as it is but for a CR ahead of every LF, one that has a CR already included.
 *
 * Result: the bytes written, with the added CRs.
 */
TAVIK_API uint32_t print_str_xcrlf(const char* text);

/*
 * Prints one character, escaped. Only its low 16 bits count; 0 prints nothing.
 *
 * Result: the bytes written.
 */
TAVIK_API uint32_t html_print_ucs2(uint32_t character);

/*
 * Prints a text, escaped. Invalid bytes drop out, the rest of the text is printed.
 *
 * Result: the bytes written.
 */
TAVIK_API uint32_t html_print_text(const char* text);

/*
 * Prints the beginning of a text, escaped: at most so many characters, and no more than so many
 * bytes of the text. UINT32_MAX stands for no limit. Unlike html_print_text() it ends at the first
 * invalid sequence.
 *
 * Result: the bytes written.
 */
TAVIK_API uint32_t html_print_text_limit(uint32_t characters, const char* text, uint32_t bytes);

/*
 * Prints a message, escaped, with line breaks and simple markup: LF prints "<br>", and ESC (0x1B)
 * makes the next byte a code, "B" for "<b>", "b" for "</b>", "U" for "<u>", "u" for "</u>". Any
 * other code is dropped. Nothing balances the tags.
 *
 * Result: the bytes written.
 */
TAVIK_API uint32_t html_print_text_nl(const char* text);

/*
 * Makes an escaped copy of a text, as html_print_text() would print it, and stores it in out; the
 * caller frees it. If memory runs out on the way the copy is cut short.
 *
 * Result: the size of the buffer, a multiple of 4096; -1, with out untouched, if an argument is
 * null or there is no memory.
 */
TAVIK_API int32_t html_asprint_text(char** out, const char* text);

/*
 * Makes a title attribute with a leading blank and the text escaped in it, and stores it in out;
 * the caller frees it.
 *
 * Result: the attribute's length in bytes; -1 if an argument is null, the escaped text is empty,
 * or there is no memory. out is then untouched.
 */
TAVIK_API int32_t asprint_title(char** out, const char* text);

/*
 * Prints a digit string with a mark between groups of three bytes, counted from the right. Both
 * are printed as they are, so that the mark can be markup; signs and points are bytes like others.
 * A null or empty mark leaves the text ungrouped.
 */
TAVIK_API void print_num_str_mark(const char* text, const char* mark);

/*
 * Prints what is left of a file as it is. The descriptor stays open.
 *
 * Result: the bytes printed, 0 for what fstat() tells is empty; -1 on an error of fstat(), the
 * read or the output, or if they are more than INT32_MAX.
 */
TAVIK_API int32_t print_fd(int32_t fd);

/*
 * Prints a file size: "Bytes" up to 1024, above that rounded down to "KiB", with "&nbsp;" between
 * number and unit.
 *
 * Result: that of printf().
 */
TAVIK_API int32_t print_fsize(int64_t size);

/* ---- Print formatter and flags ------------------------------------------------------------- */

/*
 * Print flags. Most are attributes of the tag being printed, the others steer field functions and
 * the output of commands. A function that could not read a stored value hands the word back with
 * PF_DISABLED, so that the field shows up disabled with no code in the page.
 */
#define PF_DISABLED 0x1U            /* control disabled, JSON text null, all bullets shown */
#define PF_CHECKED 0x2U             /* check box or radio button on */
#define PF_READONLY 0x4U            /* field read-only, most boxes then without maxlength */
#define PF_SELECTED 0x8U            /* option selected; set by the select boxes */
#define PF_PASSWORD 0x10U           /* input type "password", value shown as bullets */
#define PF_MASKED 0x20U             /* input type "text", value shown as bullets */
#define PF_DATA_VALUE 0x40U         /* with bullets: clear value in a data-value attribute */
#define PF_DISPLAY_NONE 0x80U       /* element not displayed */
#define PF_INVISIBLE 0x100U         /* element hidden, its room kept */
#define PF_SUBMIT 0x200U            /* button of type "submit", else "button" */
#define PF_AUTOCOMPLETE_OFF 0x400U  /* autocomplete "off"; with the next one "default" */
#define PF_AUTOCOMPLETE_ON 0x800U   /* autocomplete "on" */
#define PF_PRE 0x1000U              /* command output inside "<pre>" */
#define PF_COMMENT 0x2000U          /* command output inside an HTML comment */
#define PF_RAW 0x4000U              /* text printed without escaping */
#define PF_KEEP_NONE_OPTION 0x8000U /* certificate select: none option offered in any case */
#define PF_CRLF 0x10000U            /* with PF_RAW: a CR ahead of every LF */
#define PF_QUIET 0x20000U           /* run_shell() prints nothing */
#define PF_SIZE 0x40000U            /* text box with a size attribute */
#define PF_JSON_MORE 0x80000U       /* the next JSON member needs a separator */

/*
 * Prints text for HTML by a format like that of printf(), with every text and character among the
 * arguments escaped. The format's literal text goes out as it is if raw is not 0, else escaped too
 * and each piece up to its first invalid sequence.
 *
 * "%s" prints a text up to its first invalid sequence, "%c" the character of an argument's low 16
 * bits. A number in a conversion, or an int32_t argument for "*" unless negative, is the most
 * characters of "%s" and the repeat count of "%c"; there is no padding, and "-" and "." mean
 * nothing. "%d", "%i", "%u", "%x" and "%X" are printf()'s with its flags, width and precision,
 * but for "*", which must not be used there. Each takes an int32_t or uint32_t, with "l" a long,
 * and nothing wider. "%%" is a percent sign. Any other byte is skipped and the conversion goes on
 * behind it; one that the format's end cuts off prints nothing.
 *
 * Result: the bytes written, after escaping.
 */
TAVIK_API int32_t html_printf(uint32_t raw, const char* format, ...) TAVIK_NONNULL(2);

/*
 * Prints the attributes of the flag word into the open tag, each with a leading blank: in this
 * order " checked", " disabled", " readonly", " selected", the styles "display: none;" and
 * "visibility: hidden;", one style attribute each, and autocomplete with "off", "on" or "default".
 */
TAVIK_API void print_flags(uint32_t flags);

/* Prints ", " if the flag word says that a JSON member went before. */
TAVIK_API void print_json_flags(uint32_t flags);

/*
 * Gives an attribute for code that prints with a format, by an index that is no flag: 1 is
 * " disabled", 2 " checked", 3 " readonly", 4 " selected".
 *
 * Result: a constant text, never null; empty for any other index.
 */
TAVIK_API const char* html_attr(uint32_t index);

/*
 * Prints a text as the flag word says: escaped, with PF_RAW as it is, with PF_RAW and PF_CRLF as
 * it is but for a CR ahead of every LF.
 *
 * Result: the bytes written.
 */
TAVIK_API uint32_t print_xstr(const char* text, uint32_t flags);

/*
 * Adds PF_CRLF for a browser that wants it: if "Windows" stands anywhere in the text, such as the
 * request's HTTP_USER_AGENT.
 *
 * Result: the flag word, the one given if text is null.
 */
TAVIK_API uint32_t get_print_flags(uint32_t flags, const char* text);

/* ---- Page frame ---------------------------------------------------------------------------- */

/*
 * The frame of a page: print_head_p1(); in the head, as often as needed and in any order,
 * print_head_refresh(), print_head_css() and print_head_script(); print_head_p2(); the page's
 * content; print_foot(). Its lines end with CR LF. Files are copied into the page as they are; one
 * that cannot be opened counts as absent, and one that breaks off ends there. None has a result.
 */

/*
 * Begins a page: prints the first two texts, "<html>" and "<head>", and the third text. The texts
 * go out as they are and may be null; what stands ahead of the markup, HTTP header lines and the
 * document type, is in the first two.
 */
TAVIK_API void print_head_p1(const char* first, const char* second, const char* third);

/*
 * Makes the browser load another page after so many seconds, or the same page for a null format.
 * What the format yields is the URL and goes out as it is, so that quotes in it are the page's
 * business. If it yields nothing or fails, the tag has no content and asks for nothing.
 */
TAVIK_API void print_head_refresh(uint32_t seconds, const char* format, ...) TAVIK_PRINTF(2, 3);

/*
 * Prints one style element with the contents of all files that can be opened, with nothing between
 * them, or nothing if there is none. A null pointer ends the list of paths.
 */
TAVIK_API void print_head_css(const char* path, ...);

/* What print_head_script() prints; no print flags. */
#define SCRIPT_OPEN 0x1U  /* the opening tag */
#define SCRIPT_CLOSE 0x2U /* the closing tag */
#define SCRIPT_FILE 0x4U  /* the content of the file at the path; else path is the script itself */

/*
 * Prints a script element or a part of one, so that it can be put together over several calls: with
 * SCRIPT_OPEN, with neither, with SCRIPT_CLOSE. The script goes out as it is, with no line end
 * added. Without content, that is for a null path or a file that cannot be opened, a tag asked for
 * alone is printed all the same; a whole element is left out.
 */
TAVIK_API void print_head_script(uint32_t flags, const char* path);

/*
 * Ends the head and begins the body: prints a title element, unless title is null, with the title
 * escaped, and the body tag with the attributes as they are. These begin with a blank and may be
 * null.
 */
TAVIK_API void print_head_p2(const char* title, const char* attributes);

/* Ends the body and the page. */
TAVIK_API void print_foot(void);

/*
 * Prints a whole page, without a body, that makes the browser load another one after so many
 * seconds: the two texts as in print_head_p1(), and the URL as in print_head_refresh(). Without a
 * URL, also for a null format, the page holds nothing.
 */
TAVIK_API void print_refresh(const char* first, const char* second, uint32_t seconds,
                             const char* format, ...) TAVIK_PRINTF(4, 5);

/*
 * Prints the head line of a page's body, a table of one row. The left cell shows an item, of which
 * at most count bytes are read, or stays empty if it cannot be read; the right cell shows the text
 * with what the page's own JavaScript function fl_time() returns directly behind it. Item and text
 * are escaped. A script ahead of this line defines the function.
 */
TAVIK_API void print_timeline(const char* directory, const char* name, int32_t count,
                              const char* text);

/* ============================================================================================
 * Item store
 *
 * An item is a file that holds one value: its first bytes up to the first control character (0x00
 * to 0x1F and 0x7F). Writers put the value and one LF there. Spaces belong to the value, UTF-8 is
 * not checked, and what follows the first line is never seen. An empty file holds the empty value.
 * Only the create functions bring an item into being.
 * ========================================================================================= */

/*
 * Reads count bytes from a descriptor, through short reads and EINTR.
 *
 * Result: the bytes read, fewer than count only at the end of the file, 0 if count is below 1; -1
 * on a read error, with what had arrived left in buffer and its length lost.
 */
TAVIK_API int32_t full_read_fd(int32_t fd, void* buffer, int32_t count);

/*
 * Writes count bytes to a descriptor, through short writes, EINTR and answers of 0.
 *
 * Result: count, or 0 if count is below 1; -1 on a write error, whatever was written before.
 */
TAVIK_API int32_t full_write_fd(int32_t fd, const void* buffer, int32_t count);

/*
 * Copies what is left of one descriptor to another. Both stay open.
 *
 * Result: the bytes copied; -1 on a read or write error, or if they are more than INT32_MAX.
 */
TAVIK_API int32_t full_copy_fd(int32_t from, int32_t to);

/*
 * Joins an item's address and calls func(path, first, second). There is one "/" at the seam, but
 * an empty directory adds none: the name then stands alone. The path lives until func returns.
 *
 * Result: that of func; -1 with errno untouched if an argument is null.
 */
TAVIK_API int32_t _func_path_name(int32_t (*func)(const char* path, int32_t first, uint32_t second),
                                  const char* directory, const char* name, int32_t first,
                                  uint32_t second);

/*
 * Opens an item with the flags and mode of open().
 *
 * Result: a descriptor, which the caller closes; -1 on failure.
 */
TAVIK_API int32_t open_path_name(const char* directory, const char* name, int32_t flags,
                                 uint32_t mode);

/*
 * Unlinks an item; a symbolic link goes, not what it points to.
 *
 * Result: 0, or -1 on failure.
 */
TAVIK_API int32_t remove_item(const char* directory, const char* name);

/*
 * Tells whether an item exists, with symbolic links followed.
 *
 * Result: 0 if it does, else -1.
 */
TAVIK_API int32_t stat_item(const char* directory, const char* name);

/*
 * Reads the value of an item from an open descriptor: at most count bytes, with a terminator behind
 * them and one over the first control character. buffer holds count + 1 bytes. A cut can fall
 * inside a UTF-8 sequence.
 *
 * Result: the value's length in bytes, 0 for the empty value; fd itself if it is negative, with
 * buffer untouched; -1 on a read error, with buffer not terminated.
 */
TAVIK_API int32_t read_item_fd(int32_t fd, char* buffer, int32_t count);

/*
 * Reads the value of an item into a buffer of count + 1 bytes, as read_item_fd() does. After a
 * failed open, or a read that failed at once, buffer holds the empty text.
 *
 * Result: the value's length in bytes; negative on failure.
 */
TAVIK_API int32_t read_item(const char* directory, const char* name, char* buffer, int32_t count);

/*
 * Reads the value of an item of any length from an open descriptor into a heap buffer. The buffer
 * takes the file's size, but at least least bytes; a negative least stands for one memory page
 * less one byte.
 *
 * Preset result to null and free it afterwards in every case: a failed read hands out a buffer,
 * whose content is then undefined; the other failures leave result untouched.
 *
 * Result: the value's length in bytes; fd itself if it is negative; -1 on failure.
 */
TAVIK_API int32_t read_item_alloc_fd(int32_t fd, char** result, int32_t least);

/*
 * Reads the value of an item of any length into a heap buffer of at least one memory page, as
 * read_item_alloc_fd() does, with its rule on freeing.
 *
 * Result: the value's length in bytes; negative on failure.
 */
TAVIK_API int32_t read_item_alloc(const char* directory, const char* name, char** result);

/*
 * Calls callback(context, word) for each word of a list item, in order. Words are separated by any
 * number of spaces; each is writable and lives until its callback returns, whose result is ignored.
 *
 * Result: the length of the whole value in bytes, which is no count of words; negative on failure,
 * -1 for a null callback.
 */
TAVIK_API int32_t read_items_str(int32_t (*callback)(uintptr_t context, char* word),
                                 uintptr_t context, const char* directory, const char* name);

/*
 * Reads a number item from an open descriptor. Its first 15 bytes count, converted as by
 * str_to_uint(): text without a digit is the number 0. Preset result to the default: it is written
 * only if the value is not empty.
 *
 * Result: the value's length in bytes, 0 for the empty value; negative on failure. With a null
 * result pointer the number itself, at most INT32_MAX, takes the place of the length.
 */
TAVIK_API int32_t read_item_uint_fd(int32_t fd, uint32_t* result);

/*
 * Reads a number item, as read_item_uint_fd() does.
 *
 * Result: as read_item_uint_fd(); negative also if the item cannot be opened.
 */
TAVIK_API int32_t read_item_uint(const char* directory, const char* name, uint32_t* result);

/*
 * Reads a number item, as read_item_uint_fd() does, from the one path that a printf format yields.
 *
 * Result: as read_item_uint_fd(); -1 if the path cannot be formed, is empty, or cannot be opened.
 */
TAVIK_API int32_t read_item_uint_fmt(uint32_t* result, const char* format, ...) TAVIK_PRINTF(2, 3);

/*
 * Reads a signed number item from an open descriptor: as read_item_uint_fd(), but converted as by
 * str_to_sint(), and a null result pointer changes nothing else.
 *
 * Result: the value's length in bytes, 0 for the empty value; negative on failure.
 */
TAVIK_API int32_t read_item_sint_fd(int32_t fd, int32_t* result);

/*
 * Reads a signed number item, as read_item_sint_fd() does.
 *
 * Result: as read_item_sint_fd(); negative also if the item cannot be opened.
 */
TAVIK_API int32_t read_item_sint(const char* directory, const char* name, int32_t* result);

/*
 * Reads a number item and calls func with the number, UINT32_MAX for the empty value.
 *
 * Result: that of func; -1 without a call if the item cannot be read; -2 for a null func.
 */
TAVIK_API int32_t call_uint(const char* directory, const char* name,
                            int32_t (*func)(uint32_t value));

/*
 * Converts leading decimal digits to a number, modulo 2^32. Spaces and signs are no digits.
 *
 * Result: the number, 0 without a leading digit or for a null text.
 */
TAVIK_API uint32_t str_to_uint(const char* text);

/*
 * Converts an optional "-" and decimal digits to a number, with the wrap of str_to_uint().
 *
 * Result: the number, 0 without a digit or for a null text.
 */
TAVIK_API int32_t str_to_sint(const char* text);

/*
 * Converts "true" and "false", in either case, or else a number to a truth value.
 *
 * Result: 1 for "true" and for any number but 0, otherwise 0.
 */
TAVIK_API uint32_t bool_to_uint(const char* text);

/*
 * Creates an item, or empties one that exists, and writes the value's first size bytes and one LF.
 * The mode is 0666 under the process umask. A cut can fall inside a UTF-8 sequence.
 *
 * Result: the bytes written, the stored value's length + 1; negative on failure, which a null value
 * is too, with no file touched.
 */
TAVIK_API int32_t create_item(const char* directory, const char* name, const char* value,
                              int32_t size);

/*
 * Creates an item that holds a number in decimal, as create_item() does.
 *
 * Result: as create_item().
 */
TAVIK_API int32_t create_item_uint(const char* directory, const char* name, uint32_t value);

/*
 * Creates an item that holds two texts, joined with nothing between them and never cut.
 *
 * Result: as create_item(); -1 with no file touched if an argument is null.
 */
TAVIK_API int32_t create_concat_item(const char* directory, const char* name, const char* first,
                                     const char* second);

/*
 * Stores a value in an existing item if it differs from the stored one: both are compared in their
 * first size bytes, and the value's first size bytes and one LF are written. The same value is only
 * read, and the file's modification time stays. A value with a control character never compares as
 * the same.
 *
 * Result: 0 if the stored value is the same; else the bytes written, at least 1; negative on
 * failure, with the file unchanged, but for a failed write, which leaves it truncated or partly
 * written. A missing item is a failure, and none comes into being.
 */
TAVIK_API int32_t update_item(const char* directory, const char* name, const char* value,
                              int32_t size);

/*
 * Stores a number in decimal, as update_item() does.
 *
 * Result: as update_item().
 */
TAVIK_API int32_t update_item_uint(const char* directory, const char* name, uint32_t value);

/*
 * Compares a value with an item as update_item() does, and writes nothing.
 *
 * Result: 0 if the stored value is the same, 1 if it differs; negative on failure.
 */
TAVIK_API int32_t compare_item(const char* directory, const char* name, const char* value,
                               int32_t size);

/*
 * Writes a number in decimal and one LF to an existing item, without comparing.
 *
 * Result: the bytes written; negative on failure, with the file unchanged unless the write failed.
 */
TAVIK_API int32_t write_item_uint(const char* directory, const char* name, uint32_t value);

/*
 * Writes a text of any length and one LF to an existing item, without comparing. A null text
 * writes the empty value.
 *
 * Result: as write_item_uint().
 */
TAVIK_API int32_t write_item_text(const char* directory, const char* name, const char* text);

/* ---- Directories and files by line --------------------------------------------------------- */

/* The flags of make_directory(). */
enum {
  MAKE_DIR_PARENTS = 0x4 /* missing parents are made too, and an existing directory is a success */
};

/*
 * Makes a directory. mode, unless it is -1, is set exactly with chmod(), and only on a directory
 * that this call made; otherwise the mode is 0777 under the process umask. Parents that come into
 * being have that mode as well, but their owner can always write and search them. The path "." is
 * there already, whatever the flags.
 *
 * On a failure "can't create directory 'PATH'" or "can't set permissions of directory 'PATH'" goes
 * to stderr, without a line end. path is worked on in place: it is whole again after a success, and
 * after a failure on a parent it is left cut behind that parent, as the message shows it. The umask
 * is changed during the call.
 *
 * Result: 0; -1 on failure, for an existing directory too unless MAKE_DIR_PARENTS is set.
 */
TAVIK_API int32_t make_directory(char* path, int32_t mode, uint32_t flags);

/*
 * Unlinks the one file whose path a printf format yields.
 *
 * Result: that of unlink(); -1 if the path cannot be formed.
 */
TAVIK_API int32_t remove_filef(const char* format, ...) TAVIK_PRINTF(1, 2);

/*
 * Removes a directory and the files in it, hidden ones too. A subdirectory cannot be removed this
 * way: the files are gone then, the subdirectory stays, and so does the directory.
 *
 * Result: that of rmdir(), which is tried in every case; -1 for a null path.
 */
TAVIK_API int32_t remove_dir_leaf(const char* path);

/*
 * Counts the entries of a directory whose names do not begin with ".".
 *
 * Result: the count, 0 if nothing visible is there; -1 if the directory cannot be opened.
 */
TAVIK_API int32_t check_dir(const char* path);

/*
 * Calls callback(context, line) for each line of a text file, whatever its length. The line holds
 * its LF, which the last line of a file may lack; it is writable and lives until its callback
 * returns, whose result is ignored. A null callback only reads. A read error ends the file.
 *
 * Result: that of fclose(), 0 as a rule; -1 if the file cannot be opened or there is no memory.
 */
TAVIK_API int32_t rd_file_line(const char* path, int32_t (*callback)(uintptr_t context, char* line),
                               uintptr_t context);

/*
 * Replaces every byte that equals from by the low 8 bits of to, in place. A from of 0 or above 255
 * matches nothing. A to of 0 puts NULs into the text without ending the work.
 */
TAVIK_API void str_replace_chr(char* text, uint32_t from, uint32_t to);

/* ============================================================================================
 * Form fields
 *
 * A field type prints its control for a value (gen_), turns a submitted text into a value (scan_)
 * and carries the value from and to its item (rd_, update_, wr_).
 * ========================================================================================= */

/* ---- Text box ------------------------------------------------------------------------------ */

/*
 * Decides whether a submitted character stays, by a result other than 0. position is the number of
 * bytes that stayed before it, and character is never 0. What is refused is dropped without a
 * report and counts for nothing.
 */
typedef int32_t (*textbox_filter)(uint32_t position, uint32_t character);

/*
 * Prints an input tag of type "text", with PF_PASSWORD of type "password", and no line end.
 *
 * The value is escaped and cut to maximum characters or at its first invalid sequence; a null value
 * has no value attribute. maxlength, which PF_READONLY leaves out, and size, which PF_SIZE asks
 * for, tell the maximum; a negative one stands for none and is told as 2147483647.
 *
 * PF_PASSWORD and PF_MASKED show one bullet (U+2022) for each character; maximum bullets, whatever
 * the value, with PF_DISABLED or for an invalid value, but without a maximum at most one for each
 * byte. PF_DATA_VALUE adds the clear value to that, cut to as many characters, in a data-value
 * attribute. The format's output, unless null, goes out as it is behind all that and begins with a
 * blank, as in " name=\"%s\""; the attributes of the flag word come last.
 *
 * Result: that of writing the closing ">", negative if it failed.
 */
TAVIK_API int32_t vgen_xtextbox(int32_t maximum, const char* value, uint32_t flags,
                                const char* format, va_list arguments) TAVIK_PRINTF(4, 0);

/*
 * Prints a text box for a value, as vgen_xtextbox() does.
 *
 * Result: as vgen_xtextbox().
 */
TAVIK_API int32_t gen_xtextbox(int32_t maximum, const char* value, uint32_t flags,
                               const char* format, ...) TAVIK_PRINTF(4, 5);

/*
 * Prints a text box for an item, as rd_textbox_item() and vgen_xtextbox() do. maximum is in
 * characters and not negative, and the value takes three times as many bytes of stack.
 *
 * Result: the flag word, with PF_DISABLED if the item could not be read.
 */
TAVIK_API uint32_t gen_xtextbox_item(const char* directory, const char* name, int32_t maximum,
                                     uint32_t flags, const char* format, ...) TAVIK_PRINTF(5, 6);

/*
 * Prints a JSON member with a text, or with null for a null value or PF_DISABLED, behind ", " if
 * PF_JSON_MORE is set. Neither name nor value is escaped: a quote or a backslash in the value
 * breaks the JSON. A null name prints nothing.
 *
 * Result: the flag word for the next member, with PF_JSON_MORE, and with PF_DISABLED for a null
 * value, which makes every later text member null as well; flags as they are for a null name.
 */
TAVIK_API uint32_t gen_json_text(const char* value, const char* json_name, uint32_t flags);

/*
 * Prints a JSON member for an item, as rd_textbox_item() and gen_json_text() do. maximum is in
 * characters and not negative, and the value takes three times as many bytes of stack.
 *
 * Result: as gen_json_text(), with PF_DISABLED if the item could not be read.
 */
TAVIK_API uint32_t gen_json_text_item(const char* directory, const char* name, int32_t maximum,
                                      const char* json_name, uint32_t flags);

/*
 * Prints the value of an item as text of the page, escaped: as much of it as fits one memory page
 * less one byte, and nothing if it cannot be read.
 *
 * Result: the length read in bytes; negative on failure.
 */
TAVIK_API int32_t gen_text_item(const char* directory, const char* name);

/*
 * Rebuilds a submitted text in destination from its first maximum characters that the filter lets
 * through; without a filter all stay. Invalid bytes are dropped. The text ends ahead of a
 * character that does not fit whole in size bytes. destination holds size + 1 bytes, is terminated
 * also when the result is -2, and may be source. A null source is an empty text.
 *
 * Result: 1 for a text that is not empty, whether changed or not; 0 for an empty one; -2 if fewer
 * than minimum characters stayed; -1 with nothing written if destination is null or size is 0.
 */
TAVIK_API int32_t scan_textbox(const char* source, uint32_t maximum, uint32_t minimum,
                               char* destination, uint32_t size, textbox_filter filter);

/*
 * Stores a text in an item as it is, cut only to 3 x maximum bytes, not to maximum characters.
 *
 * Result: as update_item().
 */
TAVIK_API int32_t update_textbox(const char* directory, const char* name, const char* text,
                                 uint32_t maximum);

/*
 * Reads an item for a text box into a buffer of size + 1 bytes and cuts the value behind maximum
 * characters, or behind its first invalid sequence. After a failure the value is empty.
 *
 * Result: the flag word, with PF_DISABLED if the item could not be read; an empty item is none
 * such.
 */
TAVIK_API uint32_t rd_textbox_item(const char* directory, const char* name, char* buffer,
                                   int32_t size, uint32_t maximum, uint32_t flags);

/*
 * Stores a submitted text in an item: its first maximum characters that the filter lets through,
 * without a filter all, with invalid bytes dropped. An empty text is stored too.
 *
 * Result: that of update_item(), 0 if the stored value is the same; -1 for a null text.
 */
TAVIK_API int32_t update_textbox_item(const char* directory, const char* name, const char* text,
                                      uint32_t maximum, textbox_filter filter);

/* ---- Input filters ------------------------------------------------------------------------- */

/*
 * Filters for scan_textbox(), update_textbox_item() and update_password_item(), told by what they
 * keep. Result: 1 or 0. Letters and digits are those of ASCII, and only the last two keep anything
 * beyond it.
 */

/* Letters and digits. */
TAVIK_API int32_t textbox_filter_alnum(uint32_t position, uint32_t character);

/* Digits. */
TAVIK_API int32_t textbox_filter_digit(uint32_t position, uint32_t character);

/* 0x21 to 0x7E but for the quotes " ' and `. No blank. */
TAVIK_API int32_t textbox_filter_ascii_printable(uint32_t position, uint32_t character);

/* Host names: letters, digits, "-" and ".". */
TAVIK_API int32_t textbox_filter_dns(uint32_t position, uint32_t character);

/* Host names and IPv6 addresses: textbox_filter_dns() and ":". */
TAVIK_API int32_t textbox_filter_dns6(uint32_t position, uint32_t character);

/* Names in certificates: textbox_filter_dns(), "_" and "@". */
TAVIK_API int32_t textbox_filter_cname(uint32_t position, uint32_t character);

/* ASN.1 texts: textbox_filter_dns(), blank, "_", "@" and "*". */
TAVIK_API int32_t textbox_filter_asn1(uint32_t position, uint32_t character);

/* IPv6 addresses with prefix: hexadecimal digits of either case, ":" and "/". */
TAVIK_API int32_t textbox_filter_ip6prefix(uint32_t position, uint32_t character);

/* 0x01 to 0x7F, control characters too, but for leading blanks. */
TAVIK_API int32_t textbox_filter_octet(uint32_t position, uint32_t character);

/* 0x21 to 0x7F but for the quotes " ' and `. */
TAVIK_API int32_t textbox_filter_ppp_username(uint32_t position, uint32_t character);

/* textbox_filter_ppp_username() but for "*" and "?" at the beginning. */
TAVIK_API int32_t textbox_filter_ppp_password(uint32_t position, uint32_t character);

/* What a shell leaves alone inside double quotes: everything but $ \ ' " and `. */
TAVIK_API int32_t textbox_filter_shell_quoted(uint32_t position, uint32_t character);

/* textbox_filter_shell_quoted() but for ":", blank, "*" and "?". */
TAVIK_API int32_t textbox_filter_smtp(uint32_t position, uint32_t character);

/* ---- Text area ----------------------------------------------------------------------------- */

/*
 * Prints a text area. The text stands in it escaped, with its line ends as they are; a null text
 * leaves it empty. What the format yields goes into the tag as it is, nothing for a null format,
 * and the flags' attributes follow.
 */
TAVIK_API void gen_textarea(const char* text, uint32_t flags, const char* format, ...)
    TAVIK_PRINTF(3, 4);

/*
 * Copies a submitted text without its CRs, wherever they stand. destination holds as many bytes as
 * the source and its terminator, and may be the source itself.
 */
TAVIK_API void textarea_to_unix(char* destination, const char* source);

/*
 * Reads a text area's file into a heap buffer of 3 x maximum + 1 bytes, up to its first NUL. The
 * file's bytes, line ends included, are the text; one longer than maximum characters is cut there,
 * and invalid UTF-8 ends it behind the invalid sequence.
 *
 * The caller frees *text after every result but -1, which leaves it untouched.
 *
 * Result: the buffer's size in bytes; 0, with the empty text, if the file cannot be opened; -1 if
 * an argument is null or there is no memory. A failed read gives the size and the empty text.
 */
TAVIK_API int32_t get_textarea_file(char** text, const char* directory, const char* name,
                                    uint32_t maximum);

/*
 * Stores a text in an existing file, of which 3 x maximum bytes are read, if the whole text differs
 * from these: its first maximum characters are written, no further than behind its first invalid
 * sequence, and nothing is added. The same text is only read, and the file's time stamps stay. A
 * text that was cut for the file differs from it, and is written again.
 *
 * Result: 0 if nothing was written; else the bytes written + 1, so that an emptied file gives 1;
 * negative on failure, -2 for no memory. The file is then unchanged, but for a failed write, which
 * leaves it truncated or partly written. A missing file is a failure, and none comes into being.
 */
TAVIK_API int32_t update_textarea_file(const char* directory, const char* name, const char* text,
                                       uint32_t maximum);

/* ---- Select boxes -------------------------------------------------------------------------- */

/*
 * A select box holds no table: its options come from a function that is asked for each index. The
 * words of the questions, with what the answer's number means:
 */
#define SELECT_OP_SHOW 0U  /* offer this index? negative: the list ends here; 0: no, go on */
#define SELECT_OP_VALUE 1U /* print the value; not 0, negative included: it is selected */
#define SELECT_OP_LABEL 2U /* print the label; the answer is ignored */
#define SELECT_OP_ATTRS 3U /* print more attributes of the select tag; the answer is ignored */

/*
 * The function that answers for a select box. context and arg are passed on untouched; index
 * counts from 0, and is 0 for SELECT_OP_ATTRS. What it prints goes into the page as it is: values
 * and labels are its own to escape, and attributes carry a leading blank.
 */
typedef int32_t (*selectbox_class)(void* context, uint32_t operation, uint32_t index,
                                   uintptr_t arg);

/* The page's function behind gen_selectbox_num() and gen_selectbox_text(): a class less context. */
typedef int32_t (*selectbox_callback)(uint32_t operation, uint32_t index, uintptr_t arg);

/* A select field as the page holds it. */
typedef struct select_state select_state;
struct select_state {
  uint32_t flags; /* print flags of the tag; PF_DISABLED for a value that could not be read */
  union {
    uint32_t index;   /* numeric select: the selected index */
    const char* text; /* text select: the selected row's value, never null */
  } value;
};

/* One row of a text select. */
typedef struct selectbox_text_option selectbox_text_option;
struct selectbox_text_option {
  const char* value; /* what is submitted and stored */
  const char* label; /* what the user sees */
};

/*
 * The page's function that gives the rows of a text select, index from 0; arg is passed on
 * untouched. It is asked many times for the same index and always answers alike. Both fields of out
 * are null beforehand. It fills in texts that stay valid as long as the field's state, and with
 * them no buffer that it uses again.
 *
 * Result: positive for a row, which then has a value; 0 if the row is skipped; negative if the
 * list ends. Rows behind index 255 are not asked for.
 */
typedef int32_t (*selectbox_text_row)(uint32_t index, uintptr_t arg, selectbox_text_option* out);

/*
 * Prints a select box, a CR LF behind the select tags and each option. The tag gets the name, as it
 * is and none for null, then what SELECT_OP_ATTRS prints, then the attributes of the flag word. For
 * each index below count SELECT_OP_SHOW decides whether there is an option, which then takes
 * SELECT_OP_VALUE and SELECT_OP_LABEL. With a null function the box has no options.
 */
TAVIK_API void gen_selectbox_class(void* context, const char* name, selectbox_class options,
                                   uintptr_t arg, uint32_t count, uint32_t flags);

/*
 * Prints the value of a numeric select's option in decimal.
 *
 * Result: 1 if it is the current value, else 0.
 */
TAVIK_API int32_t selectbox_num_show_value(uint32_t value, uint32_t current);

/*
 * Prints a numeric select, in which an option's value is its index, as gen_selectbox_class() does.
 * The callback is asked for SELECT_OP_SHOW and SELECT_OP_LABEL of at most 256 indexes, and for
 * SELECT_OP_ATTRS if attributes is null; attributes and name go out as they are. A null state
 * prints a disabled box with index 0 selected.
 *
 * Result: the flag word of the tag: the state's, or PF_DISABLED for a null state.
 */
TAVIK_API uint32_t gen_selectbox_num(const select_state* state, const char* name,
                                     selectbox_callback callback, uintptr_t arg,
                                     const char* attributes) TAVIK_NONNULL(3);

/*
 * Prints a numeric select as gen_selectbox_num() does, with what a printf format yields, printed as
 * it is, for name and attributes. If format is null, or its text cannot be made, the callback is
 * asked for SELECT_OP_ATTRS.
 *
 * Result: as gen_selectbox_num().
 */
TAVIK_API TAVIK_NONNULL(2)
uint32_t gen_xselectbox_num(const select_state* state, selectbox_callback callback, uintptr_t arg,
                            const char* format, ...) TAVIK_PRINTF(4, 5);

/*
 * Takes the index of a numeric select off a submitted text: decimal digits behind leading blanks
 * (0x20 only), modulo 2^32, with whatever follows them ignored. Without a digit it is
 * default_value. An index of count or more, the default's too, becomes count - 1; with a count of 0
 * the index is 0.
 *
 * Result: 1 if *current differed and got the index; 0 otherwise, with *current untouched.
 */
TAVIK_API int32_t scan_select_num(const char* text, uint32_t* current, uint32_t count,
                                  uint32_t default_value);

/*
 * Prints a text select as gen_selectbox_class() does, with values and labels escaped and every row
 * of the current value selected. name and attributes go out as they are; either may be null.
 *
 * A callback, unless null, takes over SELECT_OP_SHOW, where the rows' own results then no longer
 * count, SELECT_OP_LABEL, and, if attributes is null, SELECT_OP_ATTRS.
 *
 * Result: the state's flag word; PF_DISABLED, with nothing printed, if state or row is null.
 */
TAVIK_API uint32_t gen_selectbox_text(const select_state* state, const char* name,
                                      selectbox_text_row row, selectbox_callback callback,
                                      uintptr_t arg, const char* attributes);

/*
 * Looks a submitted text up among the rows, byte for byte, and takes the first row's own value,
 * not a copy, into the state. A text that is no row's value is ignored.
 *
 * Result: 1 if the value differed and was taken; 0 otherwise, with the state untouched.
 */
TAVIK_API int32_t scan_select_text(const char* text, select_state* state, selectbox_text_row row,
                                   uintptr_t arg);

/*
 * Reads an item and looks its value up among the rows. The state's value becomes the first row's
 * own, or default_value for a stored text that is no row's. Only as many bytes as the longest row's
 * value has are read, so that a longer stored text is cut before it is compared.
 *
 * The state's flags are overwritten: 0 if something was read, PF_DISABLED if the item is empty or
 * unreadable, when the value is that of a row with an empty value, or default_value.
 */
TAVIK_API void rd_selectbox_text_item(const char* directory, const char* name, select_state* state,
                                      selectbox_text_row row, uintptr_t arg,
                                      const char* default_value);

/* ---- Check and number boxes ---------------------------------------------------------------- */

/*
 * Makes a flag word out of two truth values.
 *
 * Result: PF_CHECKED if checked is not 0, with PF_DISABLED if disabled is not 0.
 */
TAVIK_API uint32_t checkbox_flags(uint32_t checked, uint32_t disabled);

/*
 * Prints a check box: what the format yields, as it is, then the attributes of the flag word. Name
 * and value are the format's to give; it may be null.
 *
 * Result: that of printing the closing ">", EOF on failure.
 */
TAVIK_API int32_t gen_xcheckbox(uint32_t flags, const char* format, ...) TAVIK_PRINTF(2, 3);

/*
 * Reads the item of a check box, as read_item_uint() does.
 *
 * Result: the flag word given, with PF_CHECKED for any number but 0 and without it for 0 and for an
 * empty item; if the item cannot be read, with PF_DISABLED and PF_CHECKED as it was.
 */
TAVIK_API uint32_t rd_checkbox_item(const char* directory, const char* name, uint32_t flags);

/*
 * Stores PF_CHECKED of a flag word, as "1" or "0".
 *
 * Result: as update_item().
 */
TAVIK_API int32_t wr_checkbox_item(const char* directory, const char* name, uint32_t flags);

/*
 * Prints a number box: the name, as it is and none for null, then size, maxlength (in characters)
 * and value, always all three, then the attributes of the flag word.
 *
 * Result: that of printing the closing ">", EOF on failure.
 */
TAVIK_API int32_t gen_numberbox(const char* field_name, uint32_t size, uint32_t maxlength,
                                uint32_t value, uint32_t flags);

/*
 * Prints a number box without a size: maxlength (in characters), which PF_READONLY drops, the
 * value, what the format yields, as it is, and the attributes of the flag word. The name is the
 * format's to give; it may be null.
 *
 * Result: that of printing the closing ">", EOF on failure.
 */
TAVIK_API int32_t gen_xnumberbox(uint32_t maxlength, uint32_t value, uint32_t flags,
                                 const char* format, ...) TAVIK_PRINTF(4, 5);

/*
 * Takes a number off a submitted text: decimal digits behind leading blanks (0x20 only), modulo
 * 2^32, with whatever follows them ignored. One below the minimum becomes the minimum, any other of
 * the maximum or more becomes the maximum. Without a digit the value is default_value, which may
 * lie outside the range.
 *
 * Result: 1 if *current differed and got the value; 0 otherwise, with *current untouched.
 */
TAVIK_API int32_t scan_number(const char* text, uint32_t* current, uint32_t minimum,
                              uint32_t maximum, uint32_t default_value);

/*
 * Reads the item of a number box, as read_item_uint() does, into *value; value may be null. An
 * empty or unreadable item gives default_value.
 *
 * Result: PF_DISABLED if the item cannot be read, else 0, for an empty one too.
 */
TAVIK_API uint32_t rd_numberbox_item(const char* directory, const char* name, uint32_t* value,
                                     uint32_t default_value);

/*
 * Stores a number in decimal.
 *
 * Result: as update_item().
 */
TAVIK_API int32_t wr_numberbox_item(const char* directory, const char* name, uint32_t value);

/*
 * Prints the number box of an item, as rd_numberbox_item() and gen_numberbox() do, with a maxlength
 * of 15. field_name is the control's name and may be null.
 *
 * Result: the flag word, with PF_DISABLED if the item cannot be read; the box then shows
 * default_value.
 */
TAVIK_API uint32_t gen_numberbox_item(const char* directory, const char* name,
                                      const char* field_name, uint32_t size, uint32_t default_value,
                                      uint32_t flags);

/*
 * Prints a number item as a JSON member, with a separator ahead of it if the flag word has
 * PF_JSON_MORE: a bare number, default_value for an empty item, or null if the item cannot be read.
 * PF_DISABLED in the flag word given does not make it null. The JSON name goes out as it is.
 *
 * Result: the flag word for the next member: with PF_JSON_MORE, and with PF_DISABLED if the item
 * cannot be read. A null JSON name gives the word unchanged, with nothing read or printed.
 */
TAVIK_API uint32_t gen_json_number_item(const char* directory, const char* name,
                                        const char* json_name, uint32_t default_value,
                                        uint32_t flags);

/* ---- Ranges, times, lists ------------------------------------------------------------------ */

/*
 * Takes one number of a comma list off a text, with the digits and blanks of scan_number(), and
 * stores it in *number, which may be null. The last number has no comma behind it: it is stored,
 * and the null result ends the walk.
 *
 * Result: the text behind the comma that follows the number; null without one, and also, with
 * *number untouched, if the text does not begin with a number.
 */
TAVIK_API const char* scan_uint(const char* text, uint32_t* number);

/*
 * Takes a list such as "(1,2,3)," off a text and stores its numbers at array[*count] and on, with
 * *count moving along. At most capacity numbers are added; further ones are read and dropped. The
 * count is never reset, so that calls on the results gather several lists, while the caller lowers
 * the capacity.
 *
 * Blanks alone separate numbers too, and a comma may stand ahead of ")"; a blank ahead of a comma
 * or ")" is malformed. Numbers ahead of a malformed place stay stored and counted.
 *
 * Result: the text behind the list's comma, or the text's end if it ends within the list; null if
 * malformed, a missing "(" or final comma included; text itself if an argument is null.
 */
TAVIK_API const char* scan_list_uint(const char* text, uint32_t* count, uint32_t* array,
                                     uint32_t capacity);

/*
 * Prints a range box: maxlength (in characters), which PF_READONLY drops, what the format yields,
 * as it is, the attributes of the flag word, and only then the value. That is text, escaped, or,
 * for a null text, the bounds: "5-7", "5" for equal bounds or a null last one, "-7" for a null
 * first one, "-" if both are null. The name is the format's to give; it may be null.
 *
 * Result: that of printing the closing ">", EOF on failure.
 */
TAVIK_API int32_t gen_xrangebox(uint32_t maxlength, const uint32_t* first, const uint32_t* last,
                                const char* text, uint32_t flags, const char* format, ...)
    TAVIK_PRINTF(6, 7);

/*
 * Takes a range off a submitted text: one or two numbers as scan_number() reads them, with "-" or
 * ":" between, and blanks allowed around it. Each is limited as there, then the two are put in
 * order. A single number is both bounds. Without a number, or with only one behind the separator,
 * both bounds get default_value, which is not limited.
 *
 * Result: 1 if *first or *last differed, when both are written; 0 otherwise, with both untouched.
 */
TAVIK_API int32_t scan_range(const char* text, uint32_t* first, uint32_t* last, uint32_t minimum,
                             uint32_t maximum, uint32_t default_value);

/*
 * Tells whether a text, behind leading blanks, begins with a word in any case of ASCII letters.
 * What follows the word is not looked at, and every text begins with the empty word.
 *
 * Result: 1 if it does, else 0.
 */
TAVIK_API int32_t scan_string(const char* text, const char* word);

/*
 * Takes a time, hours and optionally ":" and minutes, off a text with sscanf(): "25:90" is 2:30.
 * Minutes above 59 go over to the hours, and the hours wrap at 24. A text without a number gives
 * 1:00.
 *
 * Result: the numbers found, 2, 1 or 0; -1 for a text of nothing but white space, and, with nothing
 * stored, for a null hours or minutes.
 */
TAVIK_API int32_t scan_time(const char* text, uint32_t* hours, uint32_t* minutes) TAVIK_NONNULL(1);

/* One weekday of a table. */
typedef struct dow_entry dow_entry;
struct dow_entry {
  uint32_t day;      /* 0 to 6, Sunday first */
  const char* name;  /* "sun", "mon", "tue", "wed", "thu", "fri" or "sat" */
  const char* label; /* inside the packed list */
};

/*
 * Fills a table of at most capacity entries from a packed list: texts one behind the other, each
 * a digit 0 to 6 for the day and the label, each with its NUL, and an empty text at the end. The
 * entries keep the order of the list, and their labels point into it.
 *
 * A text with a digit 7 to 9 uses up its entry and leaves it untouched; one without a digit ends
 * the list.
 */
TAVIK_API void gen_dow_table(dow_entry* table, uint32_t capacity, const char* list);

/*
 * Writes a set of weekdays, bit 0 for Sunday up to bit 6 for Saturday, as the day field of a cron
 * line: "1,3,5", "*" for all seven days, and the empty text for none. Higher bits mean nothing.
 * size is the buffer's whole size in bytes.
 *
 * Result: buffer; a constant "*", with the buffer untouched, if it is null or smaller than 15
 * bytes.
 */
TAVIK_API const char* cron_weekdays(char* buffer, uint32_t size, uint32_t mask);

/* ---- Radio buttons, buttons, images, uploads ----------------------------------------------- */

/*
 * Prints a radio button with a number as its value, which is on if value and current are equal or
 * PF_CHECKED is set. The name and the attribute text, which stands ahead of the flags' attributes,
 * go out as they are; either may be null.
 *
 * Result: that of printing the closing ">", EOF on failure.
 */
TAVIK_API int32_t gen_radio(const char* name, uint32_t value, uint32_t current,
                            const char* attributes, uint32_t flags);

/*
 * Prints a radio button as gen_radio() does, with a text as its value, which goes out as it is. A
 * null value prints no value attribute; a null value or current text equals nothing.
 *
 * Result: as gen_radio().
 */
TAVIK_API int32_t gen_radio_string(const char* name, const char* value, const char* current,
                                   const char* attributes, uint32_t flags);

/*
 * Prints a button element, of type "submit" with PF_SUBMIT, else of type "button". In the tag, what
 * the format yields goes out as it is, nothing for a null format, ahead of the flags' attributes.
 * Inside the element, callback(flags) prints what it likes, its result is ignored, and the escaped
 * label follows. Callback and label may be null.
 */
TAVIK_API void gen_xbutton(const char* label, int32_t (*callback)(uint32_t flags), uint32_t flags,
                           const char* format, ...) TAVIK_PRINTF(4, 5);

/*
 * Prints an image whose source is base and file, joined with nothing between them and not escaped;
 * nothing at all if either is null. The alternative text is escaped, and a null one prints no alt
 * attribute. What the format yields follows as it is, nothing for a null format.
 */
TAVIK_API void gen_image(const char* base, const char* file, const char* alternative,
                         const char* format, ...) TAVIK_PRINTF(4, 5);

/*
 * Prints the control that chooses a file for upload. What the format yields, the name included,
 * goes out as it is, nothing for a null format, ahead of the flags' attributes.
 *
 * Result: as gen_radio().
 */
TAVIK_API int32_t gen_upload(uint32_t flags, const char* format, ...) TAVIK_PRINTF(2, 3);

/* ---- IPv4 addresses ------------------------------------------------------------------------ */

/*
 * An address is one word in network byte order, as inet_addr() gives it, and so is a netmask; only
 * gen_netmask() and gen_prefix() work in host byte order. As text it is a dotted quad of at most 15
 * characters. 255.255.255.255, which is INADDR_NONE, reads as invalid text.
 */

/*
 * Prints a text input for an address: name, size, a maxlength of 15, value and the flags'
 * attributes. The name goes out as it is, and a null one prints no name attribute; a size of 0 is
 * 15. Without an address nothing is printed.
 */
TAVIK_API void gen_ipv4box(const char* name, uint32_t size, const uint32_t* address,
                           uint32_t flags);

/*
 * Prints a text input for an address as gen_ipv4box() does, but a negative size prints no size
 * attribute, and what the format yields, the name included, goes out as it is behind the value; a
 * null format prints nothing.
 */
TAVIK_API void gen_xipv4box(int32_t size, const uint32_t* address, uint32_t flags,
                            const char* format, ...) TAVIK_PRINTF(4, 5);

/*
 * Takes an address off a submitted text, by the rules of inet_addr(); invalid text gives the
 * fallback.
 *
 * Result: 1 if *held differed and got the address; 0 otherwise, with *held untouched.
 */
TAVIK_API int32_t scan_ipv4(const char* text, uint32_t* held, uint32_t fallback);

/*
 * Takes a netmask off a submitted text and stores it, changed or not. Only the leading one bits
 * count; invalid text counts as all ones. A prefix below lowest becomes lowest, then one of highest
 * or more becomes highest, which so wins where the bounds cross. Bounds above 32 act as 32.
 *
 * Result: 1; 0, with nothing stored, if text or held is null.
 */
TAVIK_API int32_t scan_ipv4_netmask(const char* text, uint32_t* held, uint32_t lowest,
                                    uint32_t highest);

/*
 * Moves an address off the reserved host parts of its subnet: one without host bits becomes the
 * first host, then one whose host bits are all set becomes the last. Under a /32 mask the address
 * stays, under a /31 mask the even one of the pair is stored, under a /0 mask every address stays.
 *
 * Result: 1 if *result got an address; 0, with *result untouched, for a null result and for the
 * addresses 0 and INADDR_NONE.
 */
TAVIK_API int32_t valid_ipv4_addr(uint32_t* result, uint32_t address, uint32_t mask);

/*
 * Reads an address item of at most 15 bytes into *result. An item that cannot be read, or holds no
 * valid address, gives the fallback.
 *
 * Result: 0 if the item could be read, whatever it holds; else 1.
 */
TAVIK_API int32_t rd_ipv4box_item(const char* directory, const char* name, uint32_t* result,
                                  uint32_t fallback);

/*
 * Stores an address as a dotted quad, as update_item() does.
 *
 * Result: as update_item(); -1 for a null address.
 */
TAVIK_API int32_t update_ipv4box_item(const char* directory, const char* name,
                                      const uint32_t* address);

/*
 * Makes a mask of as many one bits as the prefix tells, from bit 31 downward.
 *
 * Result: the mask in host byte order; all ones for a prefix of 32 or more.
 */
TAVIK_API uint32_t gen_netmask(uint32_t prefix);

/*
 * Counts the one bits of a mask in host byte order, from bit 31 down to the first zero bit.
 *
 * Result: the prefix length, 0 to 32.
 */
TAVIK_API uint32_t gen_prefix(uint32_t mask);

/* ---- IPv4 addresses with prefix ------------------------------------------------------------ */

/* An address with its prefix length: as text a dotted quad, "/" and the prefix, 18 characters. */
typedef struct ipv4_cidr ipv4_cidr;
struct ipv4_cidr {
  uint32_t address; /* in network byte order */
  uint32_t prefix;  /* 0 to 32 as scan_ipv4cidr() stores it */
};

/*
 * Prints a text input for an address with prefix: name, size, a maxlength of 18, value and the
 * flags' attributes. The name goes out as it is, and a null one prints no name attribute; a size of
 * 0 is 18, and a prefix above 32 shows as 32. Without a value nothing is printed.
 */
TAVIK_API void gen_ipv4cidr(const char* name, uint32_t size, const ipv4_cidr* value,
                            uint32_t flags);

/*
 * Prints a text input for an address with prefix as gen_ipv4cidr() does, but a negative size prints
 * no size attribute, and what the format yields, the name included, goes out as it is behind the
 * value; a null format prints nothing.
 */
TAVIK_API void gen_xipv4cidr(int32_t size, const ipv4_cidr* value, uint32_t flags,
                             const char* format, ...) TAVIK_PRINTF(4, 5);

/*
 * Takes an address with prefix off a submitted text, split at its last "/". What stands ahead is
 * the address, by the rules of inet_addr(), and invalid text gives the fallback. The prefix is the
 * digits directly behind, modulo 2^32 and at most 32, with whatever follows ignored; it is 0
 * without a digit, 32 without a "/", and always 0 with the address 0, the fallback's too. A mask
 * flag that is not 0 then clears the address's host bits.
 *
 * Result: 1 if *held differed and got the value; 0 otherwise, with *held untouched.
 */
TAVIK_API int32_t scan_ipv4cidr(const char* text, ipv4_cidr* held, uint32_t fallback,
                                uint32_t mask);

/*
 * Reads an item of at most 18 bytes into *value, as scan_ipv4cidr() does without masking. An item
 * that cannot be read gives the fallback with the prefix 32, or 0 if the fallback is 0.
 *
 * Result: 0 if the item could be read, whatever it holds; else 1.
 */
TAVIK_API int32_t rd_ipv4cidr_item(const char* directory, const char* name, ipv4_cidr* value,
                                   uint32_t fallback);

/*
 * Stores an address with prefix, as update_item() does. A prefix above 32 is stored as it is, as
 * far as 18 characters go.
 *
 * Result: as update_item(); -1 for a null value.
 */
TAVIK_API int32_t update_ipv4cidr_item(const char* directory, const char* name,
                                       const ipv4_cidr* value);

/* ---- MAC addresses ------------------------------------------------------------------------- */

/*
 * An address is the first six bytes of a socket address record's sa_data, in transmission order, as
 * the kernel gives them in an interface request. As text it is six pairs of upper-case hexadecimal
 * digits with a separator between them, 17 characters.
 */
struct sockaddr;

/*
 * Formats an address into a buffer of size bytes, cut to size - 1 characters and terminated.
 * Nothing is written if size is 0 or a pointer is null.
 *
 * Result: the buffer.
 */
TAVIK_API char* mac_ntop(const struct sockaddr* address, char separator, char* buffer,
                         uint32_t size);

/*
 * Tells a usable address from the all-zero and the all-ones one. A multicast address is usable.
 *
 * Result: 1 if usable, else 0.
 */
TAVIK_API int32_t mac_isvalid(const struct sockaddr* address);

/*
 * Asks the kernel for an interface's hardware address and formats it as mac_ntop() does. The name's
 * first 15 bytes count. On failure the buffer holds the empty text; it is untouched if size is 0.
 *
 * Result: the buffer.
 */
TAVIK_API char* if_hwaddr_ntop(const char* interface, char separator, char* buffer, uint32_t size);

/*
 * Prints a text input for a MAC address, shown with "-" as the separator: a maxlength of 18, left
 * out with PF_READONLY, then size, value, what the format yields, and the flags' attributes. A size
 * of 0 is 18, a negative one prints no size attribute. The format's output, the name included, goes
 * out as it is; a null format prints nothing. Without an address nothing is printed.
 */
TAVIK_API void gen_xmacbox(int32_t size, const struct sockaddr* address, uint32_t flags,
                           const char* format, ...) TAVIK_PRINTF(4, 5);

/*
 * Takes a MAC address off a submitted text. The family becomes ARPHRD_ETHER in any case, and every
 * text gives an address: each byte is one or two hexadecimal digits, any other single character
 * behind them is a separator, but none is needed. A separator without digits ahead of it is a byte
 * 0, missing bytes are 0, those of a null text too, and what follows the sixth is ignored.
 *
 * Result: 1 if the held address differed and got the new one; 0 otherwise.
 */
TAVIK_API int32_t scan_macaddr(struct sockaddr* address, const char* text);

/* ============================================================================================
 * Credentials and certificates
 * ========================================================================================= */

/* ---- Passwords ----------------------------------------------------------------------------- */

/*
 * A password is an item that holds its hash by crypt(), in the MD5 scheme: "$1$", 8 salt
 * characters, "$" and 22 hash characters, 34 in all. The scheme's number is 0x31, the character
 * "1"; scheme 0 is a password stored in clear. A page reads the stored password with rd_passwd(),
 * checks both new entries with chk_new_passwd(), calls update_pw() and reports the status.
 *
 * Every page is linked with libcrypt. One that calls none of crypt_cmp(), crypt_encode() and
 * update_pw() can be linked by the rules of tavik-nocrypt instead, and then starts without it.
 */

/* A user and what that user may do, in a code of the page. A pair with a null name ends a table. */
typedef struct auth_pair auth_pair;
struct auth_pair {
  const char* name;
  uint32_t value;
};

/* What became of a password entry, or of a password change. */
enum {
  PW_STATUS_NONE = 0,       /* nothing was entered, nothing was done */
  PW_STATUS_CHANGED = 1,    /* the hash was written, or at least tried to, in both directories */
  PW_STATUS_NO_HASH = 2,    /* all was well, but no hash could be made; nothing was written */
  PW_STATUS_ACCEPTED = 3,   /* the entry passed; never the outcome of a change */
  PW_STATUS_BAD_OLD = 4,    /* the old password is missing or wrong */
  PW_STATUS_MISMATCH = 5,   /* the repeated entry did not pass, or differs from the first */
  PW_STATUS_BAD_LENGTH = 6, /* too few or too many characters */
  PW_STATUS_BAD_CHAR = 7    /* a character that passwords may not have */
};

/* A stored password. The texts it points to are the caller's and outlive it. */
typedef struct passwd_state passwd_state;
struct passwd_state {
  uintptr_t caller_word; /* the page's own, never looked at */
  const char* directory;
  const char* name;
  int32_t status; /* a PW_STATUS_ code: the outcome of update_pw() */
  int32_t scheme; /* 0x31 for an MD5 hash, 0 for anything else */
  int32_t length; /* of the stored text in bytes; negative if the item could not be read */
  char stored[35];
};

/* A submitted password change. A status goes with the text that chk_new_passwd() gave out. */
typedef struct passwd_entry passwd_entry;
struct passwd_entry {
  uintptr_t caller_word; /* the page's own, never looked at */
  const char* old_text;  /* the old password, or null */
  int32_t new_status;
  const char* new_text; /* the first new entry, or null */
  int32_t repeat_status;
  const char* repeat_text; /* the repeated new entry, or null */
};

/*
 * Looks up the logged-in user, whose name is in REMOTE_USER, in a table. Names compare byte for
 * byte, and the first match counts.
 *
 * Result: the pair's value; 0 if no pair matches, REMOTE_USER is unset or the table is null.
 */
TAVIK_API uint32_t get_auth(const auth_pair* table);

/*
 * Tells whether a text of length bytes has the form of an MD5 hash: 34 bytes that begin with "$1$".
 * The salt and hash characters are not looked at.
 *
 * Result: the scheme, 0x31; 0 for anything else.
 */
TAVIK_API int32_t crypt_detect(const char* text, int32_t length);

/*
 * Compares an entered password with the stored text: by its hash, or, for the scheme 0, as it is.
 *
 * Result: 0 if the password matches; non-zero if not, if it cannot be hashed or a text is null.
 */
TAVIK_API int32_t crypt_cmp(int32_t scheme, const char* stored, const char* entered);

/*
 * Hashes a password with a new salt for the scheme 0x31; any other scheme gives a copy of the
 * password. The salt comes from the seed, the process id and the time in seconds.
 *
 * Result: a heap text, which the caller frees; null if it could not be made.
 */
TAVIK_API char* crypt_encode(int32_t scheme, const char* password, uint32_t seed);

/*
 * Names the characters that chk_new_passwd() allows, for display.
 *
 * Result: a constant text.
 */
TAVIK_API const char* passwd_chars(void);

/*
 * Checks an entry for a new password. The characters decide first, then their number, with both
 * bounds inclusive. An invalid sequence ends the check: what stands ahead of it decides. accepted,
 * which may be null, gets the text if it passed, the whole of it, and is left alone otherwise.
 *
 * Result: PW_STATUS_ACCEPTED; PW_STATUS_BAD_CHAR; PW_STATUS_NONE if there is no character, whatever
 * the minimum; PW_STATUS_BAD_LENGTH.
 */
TAVIK_API int32_t chk_new_passwd(const char* text, const char** accepted, uint32_t minimum,
                                 uint32_t maximum) TAVIK_NONNULL(1);

/*
 * Reads a stored password and fills the whole record. An item that cannot be read leaves an empty
 * stored text, a negative length and the scheme 0. At most 34 bytes are read, so that the first 34
 * of a longer text can pass for a hash.
 *
 * Result: the scheme, 0x31 or 0, which it is also for a null record.
 */
TAVIK_API int32_t rd_passwd(const char* directory, const char* name, passwd_state* state,
                            uintptr_t caller_word);

/*
 * Changes a password: hashes the new one and stores it, as update_item() does, in the state's item
 * and in the item of the same name in the second directory. What a store answers is not looked at,
 * so that a missing item, which none brings into being, still counts as changed.
 *
 * The outcome goes to the state's status. The first of these decides: a new status other than
 * PW_STATUS_ACCEPTED is the outcome itself; a repeat status other than that is PW_STATUS_MISMATCH;
 * a null new or repeated text is PW_STATUS_NONE; with verify, an old text that is null or does not
 * match the stored one is PW_STATUS_BAD_OLD; different new texts are PW_STATUS_MISMATCH; otherwise
 * PW_STATUS_CHANGED or PW_STATUS_NO_HASH. After a change the state's scheme is 0x31, and its stored
 * text and length are still the old ones. A null entry is PW_STATUS_NONE.
 *
 * An empty stored text of scheme 0, also that of an unreadable item, matches an empty old text.
 */
TAVIK_API void update_pw(const passwd_entry* entry, passwd_state* state,
                         const char* second_directory, int32_t verify);

/*
 * Stores a clear-text password from a field that showed the old one as bullets: the first maximum
 * characters of the text, if the filter lets all of them through and no bullet (U+2022) is among
 * them. Otherwise nothing is stored, so that bullets sent back untouched change nothing. Invalid
 * bytes are dropped, and an empty text stores the empty password.
 *
 * text is never null, filter may be. rejected, unless null, gets the number of characters that the
 * filter refused, 0 for a text of nothing but bullets.
 *
 * Result: 0 if nothing was written, else that of update_item().
 */
TAVIK_API int32_t update_password_item(const char* directory, const char* name, const char* text,
                                       uint32_t maximum, textbox_filter filter, uint32_t* rejected)
    TAVIK_NONNULL(3);

/* ---- Certificate directories --------------------------------------------------------------- */

/*
 * A page lists a directory of certificate files, shows them through callbacks of its own, and
 * deletes them together with their linked files: files in other directories, named like the
 * certificate with another extension. An external tool describes a file; what it prints becomes a
 * tooltip, an attribute " title=\"...\"" with the text escaped.
 */

struct dirent; /* of dirent.h */

/* The words of a tool's command line, which asprint_tooltip() puts together. */
typedef struct cert_tool cert_tool;
struct cert_tool {
  const char* wrapper; /* a command that gets the file with -i and runs the tool; or null */
  const char* command;
  const char* options; /* the last words of the line */
};

/* Linked files of one kind. A row with a null directory ends a table. */
typedef struct cert_link cert_link;
struct cert_link {
  const char* directory;
  const char* suffix;  /* replaces the certificate's extension; not null for deleting */
  const char* wrapper; /* this and the two below: as in cert_tool, for these files */
  const char* command;
  const char* options;
  uintptr_t context; /* the first argument of the link callback */
  uint32_t mask;     /* the row is shown if it shares a bit with the entry callback's result */
};

/* A listed directory. The texts and tables it points to are the caller's and outlive it. */
typedef struct cert_dir cert_dir;
struct cert_dir {
  const char* directory;
  const cert_tool* tool;  /* or null, which shows nothing */
  const cert_link* links; /* or null */
  struct dirent** list;   /* by name; null if the directory could not be listed */
  int32_t count;          /* -1 if the directory could not be listed */
};

/*
 * Shows one file. position counts from 0 in the whole listing; tooltip is null if there is none.
 * Its result is a mask of the links that are to be shown, 0 for none.
 */
typedef uint32_t (*cert_entry_callback)(uintptr_t context, const char* name, int32_t position,
                                        const char* tooltip);

/*
 * Shows a linked file, which need not exist: context and mask are those of the table's row, number
 * is the one that the certificate file begins with, 0 without a digit; tooltip is null if there is
 * none. Its result is ignored.
 */
typedef int32_t (*cert_link_callback)(uintptr_t context, uint32_t number, uint32_t mask,
                                      const char* tooltip);

/*
 * Lists a directory, in the order of its names, without those that begin with "."; subdirectories
 * are listed. Fills the whole record, which cert_dir_free() releases. tool and links may be null.
 *
 * Result: the number of entries; -1 if the directory cannot be listed.
 */
TAVIK_API int32_t cert_dir_setup(cert_dir* certificates, const char* directory,
                                 const cert_tool* tool, const cert_link* links);

/*
 * Releases a listing. The list is then null and the count 0, but the count of a directory that
 * could not be listed stays -1; a second call does nothing.
 */
TAVIK_API void cert_dir_free(cert_dir* certificates);

/*
 * Calls entry for each listed file but directories, each with its tooltip, and link for the file's
 * rows of the links table, in the table's order, that share a bit with what entry answered. A file
 * that is empty or cannot be read has no links. Without a tool or entry callback nothing is shown;
 * the link callback may be null. Directories are joined with names by exactly one "/".
 */
TAVIK_API void show_certificates(const cert_dir* certificates, uintptr_t context,
                                 cert_entry_callback entry, cert_link_callback link);

/*
 * Deletes the file at a position of the listing with all its linked files, and lists the directory
 * anew, so that positions change. Directories and names are simply put together, so that the
 * directories end in "/". A position outside the listing does nothing. If the file cannot be
 * deleted everything stays as it was; a linked file that cannot is passed over.
 */
TAVIK_API void delete_certificate(cert_dir* certificates, int32_t position);

/*
 * Runs a tool on a file and makes the title attribute of what it prints, as asprint_title_shell()
 * does; the caller frees it. The command line, for the shell, is
 *
 *     command -in "path" -noout options
 *     wrapper -i "path" -- command -noout options      (unless wrapper is null)
 *
 * The path stands between its quotes as it is: a file whose name can hold a double quote, "$", a
 * backquote or a backslash must not come here.
 *
 * Result: the attribute's length in bytes; -1, with out untouched, if the tool printed nothing, it
 * cannot be run, there is no memory, or an argument other than wrapper is null.
 */
TAVIK_API int32_t asprint_tooltip(char** out, const char* path, const char* wrapper,
                                  const char* command, const char* options);

/* ---- Certificate select -------------------------------------------------------------------- */

/*
 * A select box that names one file of a certificate directory. A value is the file's name in
 * Base64, so that any name travels safely; the none option has the empty value. An item holds the
 * name itself, empty for none.
 */

/*
 * Prints a select box with the files of a directory, in the order of their names and without those
 * that begin with "."; subdirectories are offered too. The none option comes last: selected if no
 * file is, and otherwise only with PF_KEEP_NONE_OPTION. A directory that cannot be listed gives a
 * disabled box with the none option alone.
 *
 * name may be null, and so may attributes, the page's own, each with a leading blank. Both go out
 * as they are, file names and the label escaped. No line end follows the box.
 */
TAVIK_API void gen_selectbox_certs(const char* directory, const char* name, const char* selected,
                                   const char* none_label, uint32_t flags, const char* attributes)
    TAVIK_NONNULL(3);

/*
 * Turns a submitted value into the file name, of at most limit bytes; buffer holds one byte more.
 * If it cannot be decoded or is too long, the buffer is not terminated. The name is not checked: it
 * can hold any byte, "/" and NUL among them.
 *
 * Result: the name's length in bytes; 0 for the none option, and if it could not be decoded.
 */
TAVIK_API int32_t save_selectbox_cert(char* buffer, int32_t limit, const char* text);

/*
 * Prints a select box of the directory certificates, as gen_selectbox_certs() does, for the file
 * that an item names in its first size bytes. An item that cannot be read makes it disabled, with
 * the none option selected.
 *
 * Result: the flag word used: PF_KEEP_NONE_OPTION, with PF_DISABLED if the item cannot be read.
 */
TAVIK_API uint32_t gen_selectbox_certs_item(const char* directory, const char* item,
                                            const char* name, const char* certificates,
                                            const char* none_label, int32_t size,
                                            const char* attributes);

/*
 * Stores the file name of a submitted value, as update_item() does with this size. A name of one
 * byte more is cut; a longer one, and a value that cannot be decoded, store the empty value.
 *
 * Result: as update_item(); -1 with nothing stored for a null text.
 */
TAVIK_API int32_t update_cert_item(const char* directory, const char* name, const char* text,
                                   int32_t size);

/* ============================================================================================
 * Network state
 * ========================================================================================= */

/* ---- Interfaces ---------------------------------------------------------------------------- */

/* A socket address, or three numbers where that is told. */
typedef union iface_address iface_address;
union iface_address {
  struct sockaddr_in6 in6;
  struct sockaddr_in in;
  uint32_t words[7];
};

/*
 * The state of an interface as get_interface() gives it, or one IPv6 address of an interface as
 * read_interface6_conf() does. What neither tells is 0.
 */
typedef struct iface_info iface_info;
struct iface_info {
  iface_address address; /* in: the IPv4 address; in6: the IPv6 address and its scope */
  iface_address netmask; /* in: the mask; words, for IPv6: interface index, prefix length, flags */
  uint16_t flags;        /* IPv4 only: IFF_UP and so on, see netdevice(7) */
};

struct ifreq;

/*
 * Asks the kernel for the flags, the IPv4 address and the netmask of an interface, an alias such as
 * "eth0:1" included. Only the first 15 bytes of the name count. An interface without an address is
 * no failure: address and netmask are then all 0, so that their family is 0.
 *
 * Result: 0; -1 if there is no such interface, with the flags 0 and the rest of the record as it
 * was, or if an argument is null, with the record untouched.
 */
TAVIK_API int32_t get_interface(const char* name, iface_info* info);

/*
 * Tells whether an interface has an address. status is what get_interface() answered for it.
 *
 * Result: status if that is not 0; else 0 if the record's address is of IPv4 or IPv6, and 1 if it
 * is of no such family or info is null.
 */
TAVIK_API int32_t cfg_interface(const iface_info* info, int32_t status);

/*
 * Calls callback(request, number) for the IPv4 addresses of all interfaces whose name begins with
 * prefix, in the kernel's order: one record, with ifr_name and ifr_addr, for each address, aliases
 * included. number counts the calls from 0. The records are struct ifreq of net/if.h and live until
 * the callback returns, whose result is ignored. A null or empty prefix selects all.
 *
 * Result: 0, also with a null callback; -1 if the kernel does not answer or there is no memory.
 */
TAVIK_API int32_t read_interface_conf(const char* prefix,
                                      int32_t (*callback)(const struct ifreq* request,
                                                          int32_t number));

/*
 * Counts the IPv6 addresses of an interface and calls callback(info) for each, in the order of
 * /proc/net/if_inet6. The record lives until the callback returns, whose result is ignored. With a
 * null name the addresses of all interfaces are counted, and callback is not called. Only whole
 * lines within the first 4095 bytes of the file are seen, some 70 addresses.
 *
 * Result: the count, 0 if the file cannot be read; -1 if it cannot be opened or there is no memory.
 */
TAVIK_API int32_t read_interface6_conf(const char* name,
                                       int32_t (*callback)(const iface_info* info));

/* ---- Ethernet links ------------------------------------------------------------------------ */

/*
 * Asks the PHY of an Ethernet interface for its link: it is up if the status register (IEEE 802.3,
 * clause 22) shows a link and neither jabber nor a remote fault. phy is the PHY's number on the
 * interface's MII bus; its low 16 bits count.
 *
 * Result: 1 if the link is up, 0 if not; -1 if there is no such interface or PHY.
 */
TAVIK_API int32_t get_link_status(const char* interface, uint32_t phy);

/*
 * Powers the PHY of an Ethernet interface down if down is not 0, else up, which restarts
 * autonegotiation. A PHY that is in the wanted state already is left alone.
 *
 * Result: the state afterwards, 1 if the PHY is powered down and 0 if up, which is the old state if
 * the PHY cannot be written to; -1 if it cannot be read.
 */
TAVIK_API int32_t set_link_pwrdown(const char* interface, uint32_t phy, int32_t down);

/* ============================================================================================
 * External commands
 *
 * Commands are complete command lines for the system's shell, to which they go as they are: nothing
 * is quoted or filtered. Only the standard output is captured; standard input and standard error
 * are the page's own. Every call blocks until the command has ended.
 *
 * The status of a command is a wait status: 0 for exit code 0, otherwise positive, with the exit
 * code in bits 8 to 15. A command that fails is no failure here, nor is one that does not exist.
 * ========================================================================================= */

/*
 * Runs the command that a printf format yields and prints its output, each line when it arrives, as
 * print_xstr() does. PF_COMMENT and PF_PRE wrap the output, an empty one too, in "<!--" and "-->"
 * and inside these in "<pre>" and "</pre>". With PF_QUIET nothing is printed at all.
 *
 * Result: the command's status; -1 if the command cannot be formed, where nothing is printed, if
 * the shell cannot be started or waited for, or without memory for a line, where "unable to run
 * script!" and a line feed stand at the end of the output, inside the wrappers and unescaped.
 */
TAVIK_API int32_t run_shell(uint32_t flags, const char* format, ...) TAVIK_PRINTF(2, 3);

/*
 * Runs a command and stores its whole output in out, as a text that the caller frees. One line feed
 * at its end is taken off. If memory runs out on the way the text is cut short. The command's
 * status is not told: a failing command gives what it printed.
 *
 * Result: the size of the buffer in bytes, a multiple of 4096, not the text's length; -1 if an
 * argument is null or the shell cannot be started, with out untouched, or if there is no memory,
 * with null in out.
 */
TAVIK_API int32_t asprint_shell(char** out, const char* command);

/*
 * Runs a command and makes a title attribute of its output, as asprint_shell() and asprint_title()
 * do. The caller frees it.
 *
 * Result: the attribute's length in bytes; -1 if there is no output, and on failure. out is then
 * untouched.
 */
TAVIK_API int32_t asprint_title_shell(char** out, const char* command);

/* One captured line, a heap block of its own. */
typedef struct shell_output_line shell_output_line;
struct shell_output_line {
  shell_output_line* next;   /* null at the end */
  uint32_t length;           /* that of text, in bytes */
  __extension__ char text[]; /* with the line feed that ends it, if there was one */
};

/*
 * A list of captured lines. shell_run() fills it, any number of times; one call of shell_print() or
 * shell_line() then frees the lines and leaves the record as it is: clear it before the next use.
 */
typedef struct shell_output shell_output;
struct shell_output {
  shell_output_line* first; /* null if there is none */
  uint32_t count;           /* the lines added */
};

/*
 * Runs the command that a printf format yields and adds the lines of its output to a list, behind
 * those of earlier runs. A line ends at its first NUL byte; one that begins with it, or for which
 * there is no memory, is dropped. With a null list the command runs all the same.
 *
 * Result: the command's status; -1, with what was stored left in the list, if the command cannot be
 * formed, the shell cannot be started or waited for, or without memory for a line.
 */
TAVIK_API int32_t shell_run(shell_output* list, const char* format, ...) TAVIK_PRINTF(2, 3);

/*
 * Prints the lines of a list, escaped, or as they are with PF_RAW, and frees them. PF_COMMENT and
 * PF_PRE wrap the output as run_shell() does, but an empty list prints nothing; PF_CRLF has no
 * effect.
 */
TAVIK_API void shell_print(shell_output* list, uint32_t flags);

/*
 * Calls callback(context, text) for each line of a list, in order, and frees the lines, each when
 * its callback has returned. The result of the callback is ignored; a null callback only frees.
 */
TAVIK_API void shell_line(shell_output* list, int32_t (*callback)(uintptr_t context, char* text),
                          uintptr_t context);

/*
 * Sends a signal to the process whose number an item holds.
 *
 * Result: that of kill(); -1 without a signal if the item cannot be read or does not hold a number
 * above 0.
 */
TAVIK_API int32_t signal_process(const char* directory, const char* name, int32_t signal);

/*
 * Finds the last component of a path; count and path are meant to be argc and argv[0]. A path that
 * ends in "/" gives the empty text.
 *
 * Result: a pointer into path; null if count is 0 or path is null.
 */
TAVIK_API const char* get_progname(uint32_t count, const char* path);

/* ============================================================================================
 * Data utilities
 * ========================================================================================= */

/* ---- Row tables ---------------------------------------------------------------------------- */

/*
 * What a row record of a table begins with; the page's own fields stand behind it. A table is a
 * list of such records that gives each its row number, and every operation walks the whole table.
 * Rows stay where they are in memory, so pointers to them last as long as the rows.
 */
typedef struct xtable_row xtable_row;
struct xtable_row {
  xtable_row* prev; /* null in the first row */
  xtable_row* next; /* null in the last row */
  uint32_t index;   /* the row number; that of the last row is the number of rows */
};

/* A table. All bytes 0 is an empty one. */
typedef struct xtable xtable;
struct xtable {
  xtable_row* head; /* the first row, null in an empty table */
  xtable_row* tail; /* the last row, null in an empty table */
};

/*
 * Appends a new row of size bytes, those of the prefix included, and numbers the table. Behind the
 * prefix all bytes are 0.
 *
 * Result: the row, which belongs to the table; null, with the table as it was, if there is no
 * memory or size is less than the prefix takes.
 */
TAVIK_API xtable_row* xtable_new_row(xtable* table, uint32_t size);

/*
 * Appends a row of the caller's, a block from malloc(), which belongs to the table from then on. It
 * gets no number: xtable_index_row() is called once all are in.
 */
TAVIK_API void xtable_add_row(xtable* table, xtable_row* row);

/*
 * Takes a row out of the table it is in, which is not checked, and frees it. The rows behind it
 * keep their numbers: xtable_index_row() is called once all are out.
 */
TAVIK_API void xtable_rm_row(xtable* table, xtable_row* row);

/*
 * Numbers the rows 1, 2, 3 and so on.
 *
 * Result: the number of rows.
 */
TAVIK_API uint32_t xtable_index_row(xtable* table);

/*
 * Looks a row up by the number it bears, whether or not that is its place.
 *
 * Result: the first such row, or null.
 */
TAVIK_API xtable_row* xtable_search_row(xtable* table, uint32_t index);

/*
 * Takes the row with a number out of the table, frees it, and numbers the table.
 *
 * Result: 1; 0 if there is no such row.
 */
TAVIK_API int32_t xtable_del_row(xtable* table, uint32_t index);

/*
 * Swaps the row with a number and the row before it, and numbers the table: a second call with the
 * same number moves the other row back up.
 *
 * Result: 1; 0, with the table as it was, if there is no such row or it is the first.
 */
TAVIK_API int32_t xtable_move_up_row(xtable* table, uint32_t index);

/*
 * Swaps the row with a number and the row behind it, as xtable_move_up_row() does.
 *
 * Result: 1; 0, with the table as it was, if there is no such row or it is the last.
 */
TAVIK_API int32_t xtable_move_dn_row(xtable* table, uint32_t index);

/*
 * Sorts a numbered table with qsort() and numbers it again. What is sorted is an array of pointers
 * to rows: width is sizeof(xtable_row*), not the size of a record, and the arguments of compare
 * point to such pointers. Rows that compare as equal stand as qsort() left them.
 *
 * The order stays as it was with another width, with a null compare, if the last row's number is
 * not the count of rows, and without memory.
 *
 * Result: 0 for a null or empty table, or a last row that bears the number 0; 1 in all other cases,
 * sorted or not.
 */
TAVIK_API uint32_t xtable_sort(xtable* table, uint32_t width,
                               int (*compare)(const void* left, const void* right));

/*
 * Frees all rows. The table is empty then and can be used again.
 */
TAVIK_API void xtable_cleanup(xtable* table);

/* ---- XML ----------------------------------------------------------------------------------- */

/*
 * An XML document that grows by what is appended. Nothing checks its structure. The page reads
 * buffer and length at the end and frees the buffer.
 *
 * Without memory what was to be appended is dropped, with nothing but a capacity of 0 to tell of
 * it; the next append tries again, and may succeed.
 */
typedef struct xml_data xml_data;
struct xml_data {
  uint32_t capacity; /* bytes of the buffer, a multiple of 1024; 0 before and after a failure */
  uint32_t length;   /* bytes of the document */
  char* buffer;      /* the document, not terminated; null before the first append */
};

/* The forms of a tag, with what xml_data_tag() puts behind the name, or alone for a null name. */
enum {
  XML_TAG_OPEN = 0,    /* an opening tag: ">" */
  XML_TAG_OPEN_NL = 1, /* an opening tag at the end of its line: ">" and LF */
  XML_TAG_START = 2,   /* a tag that attributes follow: nothing */
  XML_TAG_CLOSE = 3,   /* a closing tag, with "</" ahead of the name: ">" and LF */
  XML_TAG_EMPTY = 4    /* an element without content: "/>" and LF */
};

/*
 * Appends len bytes of data as they are, or so many zero bytes for null data. The buffer grows to
 * the next multiple of 1024 that fits; the first call brings it into being, also for a len of 0.
 */
TAVIK_API void xml_data_append(xml_data* doc, const void* data, int32_t len);

/*
 * Appends a text as it is, without its terminator.
 */
TAVIK_API void xml_data_str(xml_data* doc, const char* text) TAVIK_NONNULL(2);

/*
 * Appends the declaration of XML 1.0 in UTF-8, and a LF.
 */
TAVIK_API void xml_data_header(xml_data* doc);

/*
 * Appends a tag: "<" and the name, as it is, and what the form puts behind it, nothing for a form
 * that does not exist. A null name, whatever the form, finishes a tag of form XML_TAG_START once
 * its attributes stand.
 */
TAVIK_API void xml_data_tag(xml_data* doc, const char* name, int32_t form);

/*
 * Appends at most len bytes of a text, escaped: TAB, LF and CR as "&#9;", "&#10;" and "&#13;", and
 * " & ' < > as named entities. Other control characters and all bytes from 0x80 go out as they
 * are. The text ends at its NUL; UINT32_MAX stands for no limit.
 */
TAVIK_API void xml_data_txt(xml_data* doc, const char* text, uint32_t len) TAVIK_NONNULL(2);

/*
 * Appends what is left of a file, escaped as by xml_data_txt(), and closes the descriptor. Where
 * the document then ends in an escaped LF, one is taken off again: the value of an item stands
 * there without its line end. A NUL drops what follows it in its piece of 4096 bytes.
 *
 * Result: the bytes read, less 1 for a LF taken off; -1 on a read error, with what had arrived
 * left in the document.
 */
TAVIK_API int32_t xml_data_txt_fd(xml_data* doc, int32_t fd) TAVIK_NONNULL(1);

/*
 * Appends an element that holds a text: the name goes out as it is, the text escaped. A LF follows
 * the closing tag.
 */
TAVIK_API void xml_data_element(xml_data* doc, const char* name, const char* text)
    TAVIK_NONNULL(2, 3);

/*
 * Appends an attribute, with a blank ahead of it. Name and value go out as they are: the value must
 * hold no double quote, "<" or "&".
 */
TAVIK_API void xml_data_attr_str(xml_data* doc, const char* name, const char* value)
    TAVIK_NONNULL(2, 3);

/*
 * Appends an attribute with a number in decimal as its value.
 */
TAVIK_API void xml_data_attr_num(xml_data* doc, const char* name, uint32_t value) TAVIK_NONNULL(2);

/* ---- Base64 -------------------------------------------------------------------------------- */

/*
 * Encodes bytes as Base64 text (RFC 4648, section 4), with padding and without line breaks, and
 * terminates it. The text takes 4 characters for every 3 bytes begun; size, in bytes, must leave
 * room for the terminator behind it.
 *
 * Result: the text's length in bytes; -1, with nothing written, if it does not fit or a pointer is
 * null. The source of no bytes may be null.
 */
TAVIK_API int32_t base64_encode(char* destination, int32_t size, const void* source,
                                int32_t length);

/*
 * Decodes length bytes of Base64 text (RFC 4648, section 4) to at most size bytes; no terminator
 * is added. Bytes outside the alphabet are skipped wherever they stand, NUL, line ends, "-" and
 * "_" among them. Padding is required, ends the text, and the bits it leaves unused are not looked
 * at; a group of one character and three "=" is taken as one byte.
 *
 * Result: the bytes decoded, 0 if length is below 1; -1 for malformed text, or a null pointer; -2
 * if they do not fit. Whichever fault comes first decides, and the destination then holds what was
 * decoded ahead of it.
 */
TAVIK_API int32_t base64_decode(void* destination, int32_t size, const char* source,
                                int32_t length);

/* ---- Flat databases ------------------------------------------------------------------------ */

/*
 * A row of a flat database. The file gives one column a line, and a blank line, one that begins
 * with a control character, ends the row; two of them leave an empty row between. A value ends at
 * its first control character, a tab too; spaces belong to it. A line that begins with "#" is a
 * comment and does nothing, between the lines of a row neither.
 */
typedef struct db_row db_row;
struct db_row {
  db_row* next;                  /* the next row of the file, or null */
  uint32_t used;                 /* how many columns the row has */
  __extension__ char* columns[]; /* their texts; null where there was no memory */
};

/*
 * Reads a flat database into a list of rows, in the file's order, and stores its head in list: null
 * if the file has no row or cannot be opened. The caller releases it with free_db(). Lines of a row
 * beyond so many columns are dropped, and so is what there is no memory for. Blank lines ahead of
 * the first row are ignored.
 *
 * Result: that of rd_file_line(), 0 or -1; 0 with nothing read if list is null.
 */
TAVIK_API int32_t read_db_file(const char* path, uint32_t columns, db_row** list);

/*
 * Releases a list of rows, null included, with its texts.
 *
 * Result: 0.
 */
TAVIK_API int32_t free_db(db_row* list);

/*
 * Looks for the first row that has the column, counted from 0, and whose text there is the same.
 *
 * Result: the row, still part of the list; null if there is none or text is null.
 */
TAVIK_API db_row* search_db(db_row* list, uint32_t column, const char* text);

/*
 * Prints a select control with an option for each row that has both columns, counted from 0: the
 * one gives the option's value, the other its label, both escaped. Every option whose value is
 * selected, byte for byte, is marked. name goes out as it is, a null name prints no attribute. The
 * lines end with CR LF, the last tag has no line end.
 */
TAVIK_API void gen_selectbox_dbase(const db_row* list, uint32_t value_column, uint32_t label_column,
                                   const char* name, const char* selected, uint32_t flags)
    TAVIK_NONNULL(5);

/*
 * Prints the control of gen_selectbox_dbase() with the value of an item selected, of which size
 * bytes are read. It is disabled if the item cannot be read or holds the empty value.
 */
TAVIK_API void gen_selectbox_dbase_item(const db_row* list, uint32_t value_column,
                                        uint32_t label_column, const char* directory,
                                        const char* item, const char* name, int32_t size);

/* ---- Operator names ------------------------------------------------------------------------ */

/* A mobile network's operator, as the modem's answer to AT+COPN (3GPP TS 27.007) names it. */
typedef struct copn_entry copn_entry;
struct copn_entry {
  copn_entry* next; /* the next entry, or null */
  char numeric[7];  /* the numeric name, at most 6 bytes; it is not checked for digits */
  char name[27];    /* the long name, at most 26 bytes; a cut can fall inside a UTF-8 sequence */
};

/*
 * Appends the operators of a file to the one list that the process has. A line is the numeric name
 * in double quotes, a comma and the long name in double quotes, without blanks; the line's end can
 * close the long name, and what follows it does not matter. Longer names are cut. Any other line,
 * one with an empty name too, is passed over, and so is what there is no memory for.
 *
 * Result: that of rd_file_line(), 0 or -1; the list stays as it was if the file cannot be opened.
 */
TAVIK_API int32_t read_copn_file(const char* path);

/*
 * Gives the list of operators, in the order in which they were read. It stays the library's.
 *
 * Result: the first entry; null if there is none.
 */
TAVIK_API copn_entry* copn_ptr(void);

/* Releases the list of operators, which is empty then. */
TAVIK_API void free_copn(void);

/* ---- Boot environment ---------------------------------------------------------------------- */

/*
 * Loads the boot loader's variables from the MTD character device that holds them, whole: a CRC-32
 * as a little-endian word, which covers the rest, then entries of the form "name=value" and a NUL.
 * A second NUL behind an entry ends them.
 *
 * There is one image per process: this function is called once, and not again after
 * free_uboot_env(). Unless its result is 0 there are no variables, which is no fatal error.
 *
 * Result: 0 if the image is good;
 * 1 if the device is neither MTD_NORFLASH nor MTD_DATAFLASH;
 * 2 if it is smaller than 5 or larger than 65536 bytes;
 * 3 if it cannot be read to its end;
 * 4 if there is no memory;
 * 5 if the checksum does not match;
 * negative if it cannot be opened or does not tell its size.
 */
TAVIK_API int32_t read_uboot_env(const char* path);

/*
 * Looks a variable up by its whole name, in the case it is written in. Of two entries with one name
 * the first counts. A name is compared up to its first "=", and an entry without "=" is none.
 *
 * Result: the value, which lives until free_uboot_env() and may be empty; null if there is none.
 */
TAVIK_API const char* uboot_getenv(const char* name);

/*
 * Frees the image. No value that was looked up is valid any more, and of this section crc32() alone
 * may be called from then on.
 */
TAVIK_API void free_uboot_env(void);

/*
 * Continues a CRC-32 (reflected, polynomial 0xEDB88320) over length bytes of data. Nothing is
 * inverted here: for the CRC of ISO 3309 start with 0xFFFFFFFF and complement the last result.
 *
 * Result: the new value, the start value of the next call; crc itself for no bytes or null data.
 */
TAVIK_API uint32_t crc32(uint32_t crc, const void* data, uint32_t length);

/* ---- Catalogues ---------------------------------------------------------------------------- */

/*
 * A selectbox_text_row of the ciphers that a VPN can use, "none" as the last. arg is not used, and
 * out may be null.
 *
 * Result: 1; -1, with out untouched, for an index above 12.
 */
TAVIK_API int32_t get_ovpn_cipher(uint32_t index, uintptr_t arg, selectbox_text_option* out);

/*
 * A selectbox_text_row of the digests that a VPN can use, as get_ovpn_cipher() is of ciphers.
 *
 * Result: 1; -1, with out untouched, for an index above 6.
 */
TAVIK_API int32_t get_ovpn_hash(uint32_t index, uintptr_t arg, selectbox_text_option* out);

/*
 * Tells how many septets a character takes in a short message, by the GSM 7-bit default alphabet
 * and its extension table (3GPP TS 23.038). It departs from the standard's tables in three places:
 * U+00E7 can be sent and U+00C7 cannot, nor can the form feed.
 *
 * Result: 1; 2 for a character of the extension table; 0 for one that cannot be sent.
 */
TAVIK_API int32_t check_ucs2_to_gsm(uint32_t character);

/* A row of a table for get_infoflags(). */
typedef struct infoflag_row infoflag_row;
struct infoflag_row {
  uint32_t mask;    /* the flag bits that the row governs; 0 ends the table */
  int32_t position; /* the byte of the texts that decides on them, from 0 */
};

/*
 * Clears the bits of a flag word that a string of switches, one byte each, does not leave on. For
 * each row the byte at its position decides, that of second where first is too short: a byte above
 * "0" keeps the row's bits, any other, or none, clears them. Bits of no row stay.
 *
 * table and second may be null: the flags are then as they were, or first stands alone.
 *
 * Result: the flags left; 0 if first is null or empty.
 */
TAVIK_API uint32_t get_infoflags(uint32_t flags, const infoflag_row* table, const char* first,
                                 const char* second);

/* A row of a table for get_devinfo(). */
typedef struct devinfo_row devinfo_row;
struct devinfo_row {
  int32_t code;              /* 0 ends the table */
  uintptr_t caller_words[7]; /* the page's own, not looked at */
};

/*
 * Looks up the row for a device's code, the first byte of a text: the first row in the table's
 * order whose code is at least that.
 *
 * Result: the row; the table's first row if there is none, or text is null or empty.
 */
TAVIK_API const devinfo_row* get_devinfo(const devinfo_row* table, const char* text)
    TAVIK_NONNULL(1);

#ifdef __cplusplus
}
#endif

#endif /* TAVIK_H */
