#ifndef RADSEL_C_H
#define RADSEL_C_H

/*
 * The C interface of radsel: finds radiators, valves and connections in makers' catalogues,
 * silently or with modal dialogs. Everything is in one library, libradsel_c: a program in C, or in
 * any language that calls C, needs nothing else.
 *
 * A program tells where its catalogues are and asks:
 *
 *     radsel_request room;
 *     radsel_set_text(RADSEL_CATALOGUE_FOLDER, "/srv/catalogues");
 *     radsel_request_init(&room, sizeof room);
 *     strcpy(room.maker, "Valmorena");
 *     ...
 *     if (radsel_find_radiator(&room) < 0)
 *         fprintf(stderr, "%s\n", radsel_last_error());
 *
 * Text is UTF-8. A text field of a record is an array of char that a NUL ends; bytes that are no
 * UTF-8 come back as they went in. A text argument may be null, which stands for the empty text.
 * Names of catalogues count exactly, case and blanks included. In paths "\" and "/" both separate
 * folders.
 *
 * Units. Catalogues and requests: millimetres. Connections, drawn radiators and the arguments of
 * radsel_water_content(): metres. Watts, degrees Celsius, litres; kv in m3/h, pressures in mbar,
 * angles in degrees. A colour index is 1 to 255 as in the drawing; a colour value is 0x00BBGGRR.
 * A yes is any int but 0.
 *
 * Records begin with their size in bytes, which their init function sets to what the caller was
 * compiled with. A later library takes records of an earlier caller: what the record does not have
 * has its default and is not written. An earlier library leaves the end of a longer record alone.
 * A size must end behind a field. Records belong to the caller; nothing here keeps a pointer to one
 * once the call has returned.
 *
 * Results are ints: 0 or above is success, below 0 one of the codes of radsel_result. The text
 * behind a code is radsel_last_error(). A record whose call ended with a code other than
 * RADSEL_NOTHING and RADSEL_CANCELLED stays as it was, unless the function says otherwise. No
 * exception leaves the library.
 *
 * Threads. One call at a time, as the library keeps one catalogue for the process. A call that
 * comes from a second thread while one runs gets RADSEL_WRONG_THREAD; callbacks may call back.
 * Dialogs are modal, on the thread of the caller, which must be the same for all dialogs and should
 * be that of the user interface. Error texts are kept for each thread.
 *
 * Stability. What this header declares stays, with its meaning, its numbers and its layout. Later
 * versions add functions, numbers of enumerations and fields at the end of records that have a
 * size; records without one never change. RADSEL_C_VERSION is raised with each addition.
 */

#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32) && defined(RADSEL_C_BUILDS)
#define RADSEL_C_API __declspec(dllexport)
#elif defined(_WIN32)
#define RADSEL_C_API __declspec(dllimport)
#elif defined(__GNUC__)
#define RADSEL_C_API __attribute__((visibility("default")))
#else
#define RADSEL_C_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

#define RADSEL_C_VERSION 1

/* RADSEL_C_VERSION of the library. */
RADSEL_C_API int radsel_c_version(void);

/* ---------------------------------------------------------------------------------------------
 * Results
 */

enum radsel_result
{
    RADSEL_OK = 0,
    /* Nothing fits, nothing is there. radsel_last_error() tells why. */
    RADSEL_NOTHING = -1,
    /* The user has cancelled. */
    RADSEL_CANCELLED = -2,
    /* A null pointer, a record of an impossible size, a text without an end, an unknown number. */
    RADSEL_BAD_ARGUMENT = -10,
    /* A file cannot be read or holds what it must not; see radsel_last_error_file(). */
    RADSEL_BAD_FILE = -11,
    /* A callback has reported a failure. */
    RADSEL_HOST_FAILED = -12,
    /* An answer is longer than its field. */
    RADSEL_TEXT_TOO_LONG = -13,
    RADSEL_NO_MEMORY = -14,
    RADSEL_WRONG_THREAD = -15,
    RADSEL_INTERNAL_ERROR = -16
};

/* Why the last call of this thread did not succeed, in a sentence or more; empty after a success.
 * Never null; good until the next call of this thread. Where the reason lies in a file the text
 * names it and the line. */
RADSEL_C_API const char* radsel_last_error(void);

/* The file of that reason, empty if there is none or if the text alone names it, as it does for
 * valve files; and its line from 1, 0 if the file as a whole is at fault. */
RADSEL_C_API const char* radsel_last_error_file(void);
RADSEL_C_API int radsel_last_error_line(void);

/* ---------------------------------------------------------------------------------------------
 * Records
 */

/* Bytes of the text fields, the ending NUL included. */
#define RADSEL_TEXT 256
#define RADSEL_POINT_TEXT 512

/* Sizes and outputs of a radiator; a record that never changes. */
typedef struct radsel_radiator
{
    double height;
    double depth;
    double length;
    /* In a row that a host hands in: the output at 75/65/20 degrees Celsius per metre, per section
     * or of the unit, as `form` says. Everywhere else that of the whole radiator in whole watts. */
    double output_en442;
    /* Output of the whole radiator at design temperatures in whole watts; not looked at in a row
     * that a host hands in. */
    double output;
    /* Number of sections for form 'S' and 's', else 0. */
    double sections;
    /* 'M' or 'm': stated per metre, 'S' or 's': per section, any other: of the unit. */
    int form;
    int unused;
    /* Exponent of the radiator; shown, never used in a conversion. */
    double exponent;
    /* Water content in litres, as the catalogue has it. */
    double water;
} radsel_radiator;

/* One size of a product. */
typedef struct radsel_row
{
    size_t size;
    /* Type text. */
    char name[RADSEL_TEXT];
    radsel_radiator data;
} radsel_row;

/* What is wished and what was chosen. */
typedef struct radsel_request
{
    size_t size;
    /* The product: names of its maker, its kind and its own. */
    char maker[RADSEL_TEXT];
    char kind[RADSEL_TEXT];
    char product[RADSEL_TEXT];
    /* Required output at design temperatures in watts. Radiators that are built to measure are made
     * around it. 0 becomes 1000 where a radiator is found or chosen, and that stays. After OK of
     * the selection dialog the output of the chosen row. */
    double output;
    /* -1: derived from `output` and `tolerance`. A silent search looks at a min_output above 0
     * only: a weaker row loses its place to the next one that comes. */
    double min_output;
    double max_output;
    /* A fraction of the output. */
    double tolerance;
    /* Ranges in millimetres; rows up to 10 mm beyond the range of heights fit. */
    double min_length;
    double max_length;
    double min_height;
    double max_height;
    double min_depth;
    double max_depth;
    /* Design temperatures. A supply or return of 0 or less gives the factor 1, which leaves outputs
     * as they are at 75/65/20; supply equal to return has no factor, and no row fits. */
    double supply_temperature;
    double return_temperature;
    double room_temperature;
    /* Out: factor from the output at 75/65/20 to that at design temperatures. */
    double factor;
    /* Identification of the room, "floor.name". Not empty: the selection dialog works with the
     * demand of the room and what other radiators cover of it, in watts. */
    char room[RADSEL_TEXT];
    double room_demand;
    double room_covered;
    /* A yes has the maker's catalogue read again, which makes the sizes for the output required
     * now; otherwise those made for the last one stay. Out: no, once it was read. The init function
     * says yes. */
    int reread;
    int unused;
    /* Out: type text and data of the chosen row. */
    char type_name[RADSEL_TEXT];
    radsel_radiator chosen;
} radsel_request;

/* Most rows of a kv table. */
#define RADSEL_MAX_KV 50

/* One valve: key, names, nominal data and the rows of its kv table. */
typedef struct radsel_valve
{
    size_t size;
    /* The key: name of the maker's folder, and the article's ident of 36 digits. */
    char maker[RADSEL_TEXT];
    char number[RADSEL_TEXT];
    /* Order number of a fetched valve, which the catalogue may leave out; display name of one that
     * was picked or listed. */
    char name[RADSEL_TEXT];
    /* Of a valve that was picked in the dialog these two stand the other way round. */
    char main_group[RADSEL_TEXT];
    char group[RADSEL_TEXT];
    char note[RADSEL_TEXT];
    double nominal_diameter;
    /* Yes if the valve can be preset. */
    int presettable;
    /* Valve kind code of the catalogue, 1 to 11 are known. */
    int kind;
    /* 1 marks a valve with a bypass. */
    int type;
    /* Count of rows in the tables below, which run in parallel; what stands behind is not valid. */
    int row_count;
    float kvs;
    float max_pressure;
    /* Two values of the data set that are carried for the host. */
    float value5;
    float value6;
    float proportional_band[RADSEL_MAX_KV];
    /* Valves with a bypass only, else 0: kv of the bypass and through the radiator, and the share
     * of the latter in whole percent. */
    float bypass_kv[RADSEL_MAX_KV];
    float radiator_kv[RADSEL_MAX_KV];
    float radiator_share[RADSEL_MAX_KV];
    float kv[RADSEL_MAX_KV];
    float row_kvs[RADSEL_MAX_KV];
    float presetting[RADSEL_MAX_KV];
} radsel_valve;

/* A connection point; a record that never changes. The origin is the radiator's middle, x its
 * length, y its depth, z its height. A position is a fraction of the size along the axis (-0.5 and
 * 0.5 are the end faces), to which the offset in metres is added. Two angles give the direction of
 * the pipe: 0;0 along +x, 180;0 along -x, 0;90 up, 0;270 down; the third is 0. */
typedef struct radsel_point
{
    double position[3];
    double offset[3];
    double angle[3];
    /* Distance of the valve to the side; meaningful only where the pipe leaves horizontally. */
    double side_distance;
} radsel_point;

/* How a radiator is connected. */
typedef struct radsel_connection
{
    size_t size;
    /* Display name of the connection type. */
    char name[RADSEL_TEXT];
    radsel_point flow;
    radsel_point ret;
    /* Cross-over of flow and return: its distance, and 0 none, 1 flow over return, 2 return over
     * flow. */
    double crossing_distance;
    int crossing_kind;
    int unused;
    /* Distance from the wall; 0: not used. */
    double wall_distance;
    /* Connection point texts, the form that points have in the drawing. If flow and return have the
     * same position, both points are read from here when the dialog opens. */
    char flow_text[RADSEL_POINT_TEXT];
    char return_text[RADSEL_POINT_TEXT];
    /* Graphic blocks of the valves; empty for none. */
    char flow_graphic[RADSEL_TEXT];
    char return_graphic[RADSEL_TEXT];
} radsel_connection;

/* The checks of the connection dialog. */
typedef struct radsel_connection_checks
{
    size_t size;
    /* In: whether the user may change the next two. */
    int selectable;
    /* Out: whether the valves, and whether the connection type, are to be taken over. */
    int valves;
    int type;
    /* In and out. */
    int fan_coil;
} radsel_connection_checks;

/* A radiator in the drawing, which shows its connection points while the connection dialog is
 * open. */
typedef struct radsel_drawn
{
    size_t size;
    /* Its axes in the drawing, each of the length that a metre of the radiator has there, and its
     * middle. */
    double axes[3][3];
    double origin[3];
    /* Its size in metres. */
    double length;
    double depth;
    double height;
    /* Its attributes H_VL_PUNKT and H_RL_PUNKT; empty for none. Out: the last texts that were
     * shown, after Cancel too. */
    char flow_text[RADSEL_POINT_TEXT];
    char return_text[RADSEL_POINT_TEXT];
} radsel_drawn;

/* Layer and colour index of a radiator. */
typedef struct radsel_layer
{
    size_t size;
    char name[RADSEL_TEXT];
    int color;
    int unused;
} radsel_layer;

/* Three numbers of the host's libraries. */
typedef struct radsel_error_numbers
{
    size_t size;
    int32_t category;
    int32_t code;
    int32_t line;
    int32_t unused;
} radsel_error_numbers;

/* Fill a record of `size` bytes with its defaults: empty texts, 0 and the identity, but for a
 * request min_output and max_output -1, tolerance 0.1, factor 1, reread yes and ranges that are
 * open (0 to 100000). A null record is left alone. */
RADSEL_C_API void radsel_row_init(radsel_row* row, size_t size);
RADSEL_C_API void radsel_request_init(radsel_request* request, size_t size);
RADSEL_C_API void radsel_valve_init(radsel_valve* valve, size_t size);
RADSEL_C_API void radsel_connection_init(radsel_connection* connection, size_t size);
RADSEL_C_API void radsel_connection_checks_init(radsel_connection_checks* checks, size_t size);
RADSEL_C_API void radsel_drawn_init(radsel_drawn* drawn, size_t size);
RADSEL_C_API void radsel_layer_init(radsel_layer* layer, size_t size);
RADSEL_C_API void radsel_error_numbers_init(radsel_error_numbers* numbers, size_t size);

/* ---------------------------------------------------------------------------------------------
 * The program as the host: settings, callbacks, drawing
 */

/* What the library asks of its host as a text. */
enum radsel_text_setting
{
    /* Folder of the radiator catalogues, one sub-folder a maker with his "hk.tga". Default: the
     * environment variable RADSEL_HKDIR, else none. */
    RADSEL_CATALOGUE_FOLDER = 1,
    /* The same of the valve catalogues, with "ha.tga". Default: RADSEL_VEDIR, else none. */
    RADSEL_VALVE_FOLDER = 2,
    /* Where the blocks of radiators and of valves are; handed to the drawing as it is. Default:
     * none. */
    RADSEL_RADIATOR_BLOCKS = 3,
    RADSEL_VALVE_BLOCKS = 4,
    /* Root of the data that an office shares, with the folder HEIZUNG of connection types and
     * heating systems. Default: the environment variable TGA_DATA_SINGLE_S, else TGA_DATA_SINGLE.
     */
    RADSEL_SHARED_FOLDER = 5,
    /* Folder of what this working place keeps (places of windows). Default: TGA_DATA_SINGLE. */
    RADSEL_LOCAL_FOLDER = 6,
    /* Folder of what dialogs remember (layer, last selection) where the host has no read_store.
     * Default: none, they are remembered to the end of the process. */
    RADSEL_STORE_FOLDER = 7,
    /* Layer of radiators; "$d" in it stands for the floor. Default: "HEIZ_HK_$d". */
    RADSEL_LAYER_NAME = 8,
    /* The block used last. A choice of the user sets it where no keep_block takes it. Default:
     * none. */
    RADSEL_LAST_BLOCK = 9,
    /* Name without folder of the file of window places. Default: "winpos.txt". */
    RADSEL_PLACEMENT_FILE = 10,
    /* Name of the program, for banners. Default: "radsel". */
    RADSEL_PROGRAM_NAME = 11
};

/* What it asks as a number. */
enum radsel_number_setting
{
    /* Unit of the drawing and unit that the user reads: 1 metre, 100 centimetre, 1000 millimetre.
     * Default: 1. */
    RADSEL_DRAWING_UNIT = 1,
    RADSEL_USER_UNIT = 2,
    /* Colour index of the layer. Default: 1. */
    RADSEL_LAYER_COLOR = 3,
    /* Yes: the host manages layers by itself. Default: what the dialog proposes. */
    RADSEL_AUTO_LAYER = 4,
    /* Yes: the user may change what the office shares. Default: no. */
    RADSEL_SUPER_USER = 5,
    /* Yes: dialogs are coloured, with those of the five colour values that are set. Default: no. */
    RADSEL_ALLOW_SKIN = 6,
    RADSEL_SKIN_BACKGROUND = 7,
    RADSEL_SKIN_BUTTON = 8,
    RADSEL_SKIN_FRAME = 9,
    RADSEL_SKIN_LIST = 10,
    RADSEL_SKIN_INPUT = 11,
    /* Yes: Enter moves to the next control. Default: no, also where get_number fails. */
    RADSEL_ENTER_AS_TAB = 12,
    /* Yes: a themed banner. Default: no. */
    RADSEL_BANNER = 13,
    /* Colour values in which flow and return are drawn. Default: red and blue. */
    RADSEL_FLOW_COLOR = 14,
    RADSEL_RETURN_COLOR = 15
};

/* Set what is answered where the host has no callback or its callback does not know. A null text
 * gives the setting back to its default, and so does radsel_reset_number(). */
RADSEL_C_API int radsel_set_text(int setting, const char* text);
RADSEL_C_API int radsel_set_number(int setting, int value);
RADSEL_C_API int radsel_reset_number(int setting);

/* The window above which dialogs open: its number on X11, as of all toolkits there. It is told to
 * the window system as the owner, which keeps dialogs above it; input to it is not blocked: a
 * program of another toolkit disables its windows itself while a call with a dialog runs. Windows
 * of Qt in the process need no call: dialogs open above the active one, and block all. 0, and every
 * window system that knows no such numbers (Wayland): dialogs are windows of their own. */
RADSEL_C_API void radsel_set_parent_window(uint64_t window);

/* What callbacks put their answers into. Good during the callback only. */
typedef struct radsel_catalogue radsel_catalogue;
typedef struct radsel_names radsel_names;
typedef struct radsel_bytes radsel_bytes;
typedef struct radsel_picture radsel_picture;

RADSEL_C_API int radsel_names_add(radsel_names* names, const char* name);
RADSEL_C_API int radsel_bytes_add(radsel_bytes* bytes, const void* data, size_t count);
/* Rows from top to bottom, four bytes a pixel: red, green, blue, alpha. Up to 32767 either way. */
RADSEL_C_API int radsel_picture_set(radsel_picture* picture, int width, int height,
                                    const unsigned char* rgba);

/* Fill a catalogue. A kind belongs to the maker that is read, a product to the kind added last, a
 * row to the product added last. Rows of a product run through rising lengths, series after
 * series. A kind or product that was added before is continued in its place. */
RADSEL_C_API int radsel_catalogue_add_kind(radsel_catalogue* catalogue, const char* name);
RADSEL_C_API int radsel_catalogue_add_product(radsel_catalogue* catalogue, const char* name);
RADSEL_C_API int radsel_catalogue_add_row(radsel_catalogue* catalogue, const radsel_row* row);

/* Tells why a callback is about to fail: what radsel_last_error() of the call in progress will say.
 * `file` may be null, `line` 0. Always gives RADSEL_HOST_FAILED, so that a callback may return it.
 */
RADSEL_C_API int radsel_host_failure(const char* text, const char* file, int line);

/* The host's side. Every entry may be null; then the library answers by itself as told with it, and
 * the same where a callback that asks for something gives RADSEL_NOTHING: not known. RADSEL_OK is
 * success. Any other value is a failure: while a dialog is open a message tells it and the dialog
 * stays open; otherwise the call ends with RADSEL_HOST_FAILED. Exceptions and jumps must not leave
 * a callback. `user` is the table's. A text is written into the buffer, its NUL included, within
 * `capacity` bytes; texts that come in are good during the callback. */
typedef struct radsel_host
{
    size_t size;
    void* user;

    /* Settings, asked often: answer quickly. Null: what radsel_set_text() and radsel_set_number()
     * have set, else the default. */
    int (*get_text)(void* user, int setting, char* buffer, size_t capacity);
    int (*get_number)(void* user, int setting, int* value);
    /* The user has chosen this block as the one to be used next. Null: RADSEL_LAST_BLOCK is set. */
    int (*keep_block)(void* user, const char* block);

    /* Radiator catalogues. Both or none. Null: the files in RADSEL_CATALOGUE_FOLDER, in the
     * structure of VDI 3805. list_makers adds the names of all makers in the order in which they
     * are shown; RADSEL_NOTHING: there are none. read_maker adds all that the maker has; sizes that
     * are built to measure around `output_en442`, the required output in watts at 75/65/20 (any
     * number, not-a-number included). It is asked when the maker comes up first, and again when a
     * request says reread. RADSEL_NOTHING: he has nothing. */
    int (*list_makers)(void* user, radsel_names* makers);
    int (*read_maker)(void* user, const char* maker, double output_en442,
                      radsel_catalogue* catalogue);

    /* What dialogs remember, bytes under a name such as "HkAuswahl.def". Both or none. Null: files
     * in RADSEL_STORE_FOLDER. A failure of these two is not shown: the dialog starts afresh. */
    int (*read_store)(void* user, const char* name, radsel_bytes* bytes);
    int (*write_store)(void* user, const char* name, const void* data, size_t count);

    /* Dialogs that the host lends; RADSEL_CANCELLED if the user cancels. Null: the library's own.
     * The layer and the colour index go in and out, and so does the opacity of a dialog, 100 to
     * 255. */
    int (*choose_layer)(void* user, char* layer, size_t capacity, int* color);
    int (*choose_color)(void* user, int* color);
    int (*choose_opacity)(void* user, int* opacity);

    /* The help page of a dialog is wanted: 18000 radiators, 18002 tree, 18003 valves, 238
     * connection, 18006 distances. Null: there is no help. */
    int (*show_help)(void* user, int dialog);
    /* A message for the user, who has read it when the callback returns. `icon`: 0 none, 1
     * information, 2 warning, 3 error. The caption may be empty. Null: a message box, and a line
     * on standard error where the process has no windows. */
    int (*show_message)(void* user, int icon, const char* caption, const char* text);
    /* The floor of a room identification. Null: what stands ahead of the first ".". */
    int (*floor_of_room)(void* user, const char* room, char* buffer, size_t capacity);
} radsel_host;

RADSEL_C_API void radsel_host_init(radsel_host* host, size_t size);

/* Makes the table, which is copied, the host of this process; null: none. What earlier calls have
 * kept of radiator catalogues is given up. Not from inside a callback. */
RADSEL_C_API int radsel_set_host(const radsel_host* host);

/* The drawing as dialogs see it. Every entry may be null; then the dialogs leave out what it is
 * for. Results as those of radsel_host. */
typedef struct radsel_drawing
{
    size_t size;
    void* user;
    /* Adds the names of the layers on which the user may draw. */
    int (*list_layers)(void* user, radsel_names* layers);
    int (*get_layer_color)(void* user, const char* layer, int* color);
    /* Adds the names of the blocks in a folder, which is what RADSEL_RADIATOR_BLOCKS or
     * RADSEL_VALVE_BLOCKS says. */
    int (*list_blocks)(void* user, const char* folder, radsel_names* blocks);
    /* A picture of a block; width and height are wishes, 0 leaves them to the host. */
    int (*get_block_preview)(void* user, const char* folder, const char* block, int width,
                             int height, radsel_picture* picture);
    /* Points that are shown for the moment: the last ones go, new ones come between begin and end.
     */
    int (*clear_preview)(void* user);
    int (*begin_preview)(void* user);
    int (*end_preview)(void* user);
    /* A point in units of the drawing, the unit vector in which its pipe leaves, its side distance
     * in metres, its colour value. */
    int (*draw_point)(void* user, const double place[3], const double direction[3],
                      double side_distance, int color, int is_return);
} radsel_drawing;

RADSEL_C_API void radsel_drawing_init(radsel_drawing* drawing, size_t size);

/* ---------------------------------------------------------------------------------------------
 * Radiators
 */

/* Finds silently the row whose output is nearest to the required one, of those in the size ranges.
 * The result is its index among them (those that radsel_list_rows() gives); `type_name` and
 * `chosen` hold it. Nearest does not mean enough: compare chosen.output. RADSEL_NOTHING: no row
 * fits, and the two stay. RADSEL_BAD_FILE: the maker's catalogue cannot be read. */
RADSEL_C_API int radsel_find_radiator(radsel_request* request);

/* Lets the user choose a radiator. What he changes stays in the request, after Cancel too. The
 * layer, which may be null, comes back with the user's, after Cancel too. The drawing may be null.
 * With `warn_and_widen` the user is told once if nothing fits, and all depths and lengths come in.
 * RADSEL_NOTHING: OK, but there was no row to choose. */
RADSEL_C_API int radsel_choose_radiator(radsel_request* request, radsel_layer* layer,
                                        const radsel_drawing* drawing, int warn_and_widen);

/* Lets the user choose a product in the tree of all catalogues, which opens on that of the request.
 * Maker, kind and product hold the one selected last, after Cancel too. */
RADSEL_C_API int radsel_choose_product(radsel_request* request);

/* Heights and depths in which the product exists, in mm, ascending. The counts say how many places
 * the arrays have and come back with how many sizes there are; of more than places the first are
 * given. An array of 0 places may be null. RADSEL_NOTHING: no such product, or no rows. */
RADSEL_C_API int radsel_product_sizes(radsel_request* request, double* heights,
                                      size_t* height_count, double* depths, size_t* depth_count);

/* The sizes of the product's rows in whole millimetres, ascending and each once, and the water
 * contents of the rows in their own order. Each array has `capacity` places (0 to 2000); unused
 * ones hold -1. Of more sizes than places those of the first rows stay. `first_row` may be null.
 * RADSEL_NOTHING: no such product or no rows; first_row stays. */
RADSEL_C_API int radsel_row_sizes(radsel_request* request, short* heights, short* depths,
                                  short* lengths, double* waters, int capacity,
                                  radsel_row* first_row);

/* The product's smallest and largest depth in mm; RADSEL_NOTHING and -1 if it has none. */
RADSEL_C_API int radsel_min_depth(radsel_request* request, double* depth);
RADSEL_C_API int radsel_max_depth(radsel_request* request, double* depth);

/* Water content in litres of the product's row of these sizes, which are METRES; RADSEL_NOTHING and
 * 0 if there is no such row, or if it states none. */
RADSEL_C_API int radsel_water_content(radsel_request* request, double height, double depth,
                                      double length, double* litres);

/* Factor by which an output at 75/65/20 is multiplied, as searches do it: rounded to 0.001, for the
 * exponent 1.33; not-a-number where the supply equals the return. */
RADSEL_C_API int radsel_output_factor(double supply_temperature, double return_temperature,
                                      double room_temperature, double* factor);

/* ---------------------------------------------------------------------------------------------
 * What catalogues hold. A list belongs to the caller, who frees it; freeing null does nothing.
 * After a result below 0 the pointer is null.
 */

typedef struct radsel_list radsel_list;
typedef struct radsel_rows radsel_rows;
typedef struct radsel_valves radsel_valves;

/* Names of the makers, of a maker's kinds, of a kind's products, and of the makers of valves. The
 * list may be empty, as it is where no folder is set. RADSEL_NOTHING: no such maker or kind.
 * RADSEL_BAD_FILE: the maker's catalogue cannot be read, or the folder of catalogues or valves. */
RADSEL_C_API int radsel_list_makers(radsel_list** list);
RADSEL_C_API int radsel_list_kinds(const char* maker, radsel_list** list);
RADSEL_C_API int radsel_list_products(const char* maker, const char* kind, radsel_list** list);
RADSEL_C_API int radsel_list_valve_makers(radsel_list** list);

RADSEL_C_API size_t radsel_list_count(const radsel_list* list);
/* The text at a place, good as long as the list; null beyond its end. */
RADSEL_C_API const char* radsel_list_text(const radsel_list* list, size_t index);
RADSEL_C_API void radsel_list_free(radsel_list* list);

/* The rows of the request's product with their outputs at its temperatures, at most 2000 in the
 * order of the catalogue: those in the size ranges, or with `all` each of them. May be empty.
 * RADSEL_NOTHING: no such product. */
RADSEL_C_API int radsel_list_rows(radsel_request* request, int all, radsel_rows** rows);
RADSEL_C_API size_t radsel_rows_count(const radsel_rows* rows);
/* RADSEL_NOTHING beyond the end. */
RADSEL_C_API int radsel_rows_get(const radsel_rows* rows, size_t index, radsel_row* row);
RADSEL_C_API void radsel_rows_free(radsel_rows* rows);

/* All valves of a maker in the order of his file: key and names; radsel_fetch_valves() gives the
 * rest. RADSEL_NOTHING: he has no file that can be read. */
RADSEL_C_API int radsel_list_valves(const char* maker, radsel_valves** valves);
RADSEL_C_API size_t radsel_valves_count(const radsel_valves* valves);
RADSEL_C_API int radsel_valves_get(const radsel_valves* valves, size_t index, radsel_valve* valve);
RADSEL_C_API void radsel_valves_free(radsel_valves* valves);

/* ---------------------------------------------------------------------------------------------
 * Valves and connections
 */

/* Fills two valves silently by the keys that they hold. `second` may be null, and a second key with
 * fewer than 30 characters of number or no maker is left out. RADSEL_NOTHING: the first key is such
 * a one, and neither is looked for; or a valve was not found, whose record then stays as it came,
 * while the other one is filled. RADSEL_BAD_FILE: a line of the file lacks a field. A valve file is
 * read once in the life of the process. */
RADSEL_C_API int radsel_fetch_valves(radsel_valve* first, radsel_valve* second);

/* Puts the two keys into the two records first and then does the same. */
RADSEL_C_API int radsel_fetch_valves_by_key(const char* first_maker, const char* first_number,
                                            const char* second_maker, const char* second_number,
                                            radsel_valve* first, radsel_valve* second);

/* Lets the user pick a valve; with both texts not empty the dialog opens on that one. On OK `valve`
 * holds key and names of the choice, or has no name if there was none; fetch it for its table. */
RADSEL_C_API int radsel_choose_valve(const char* maker, const char* number, radsel_valve* valve);

/* Lets the user set up the connection of a radiator and its two valves. The valves are fetched by
 * their keys before the dialog opens, and that stays after Cancel; everything else is written on OK
 * only. `drawn` are the radiators that show their points meanwhile, `drawn_count` of them, one
 * behind the other and all of the first one's size; null with 0. `checks` and `drawing` may be
 * null. */
RADSEL_C_API int radsel_edit_connection(radsel_connection* connection, radsel_valve* flow_valve,
                                        radsel_valve* return_valve,
                                        radsel_connection_checks* checks, radsel_drawn* drawn,
                                        size_t drawn_count, const radsel_drawing* drawing);

/* A connection point text from its values and back, so that every finite value comes back. `text`
 * has RADSEL_POINT_TEXT bytes. Reading gives the count of values in the text, 0 to 12; with 0
 * nothing is written, else what the text does not have is 0. Each of the last three may be null in
 * reading. */
RADSEL_C_API int radsel_point_to_text(const radsel_point* point, double crossing_distance,
                                      int crossing_kind, double wall_distance, char* text);
RADSEL_C_API int radsel_point_from_text(const char* text, radsel_point* point,
                                        double* crossing_distance, int* crossing_kind,
                                        double* wall_distance);

/* ---------------------------------------------------------------------------------------------
 * The two that are left
 */

/* Does nothing; a program that only wants the library loaded calls it. */
RADSEL_C_API void radsel_dummy_call(void);

/* Copies the three numbers. */
RADSEL_C_API int radsel_copy_error_numbers(radsel_error_numbers* target,
                                           const radsel_error_numbers* source);

#ifdef __cplusplus
}
#endif

#endif
