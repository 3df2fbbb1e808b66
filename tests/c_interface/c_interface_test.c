/* The C interface as a program in C uses it: each function once and each promise of the header that
 * could break. The dialogs are answered with OK by answer_dialogs.cpp.
 *
 *     c_interface_test DATA SCRATCH */

#include "radsel_c.h"

#include <pthread.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static int failures;

#define CHECK(condition)                                                                           \
    do {                                                                                           \
        if (!(condition)) {                                                                        \
            fprintf(stderr, "%s:%d: %s\n    last error: %s\n", __FILE__, __LINE__, #condition,     \
                    radsel_last_error());                                                          \
            failures++;                                                                            \
        }                                                                                          \
    } while (0)

static int is(const char* text, const char* expected)
{
    return strcmp(text, expected) == 0;
}

/* Padding counts as well: nothing of a record may be touched. */
static int same_bytes(const void* one, const void* other, size_t size)
{
    return memcmp(one, other, size) == 0;
}

static int tells(const char* part)
{
    return strstr(radsel_last_error(), part) != NULL;
}

/* 900 W at 55/45/20 from the sample catalogues; 600 x 1100 gives 925 W, as can be worked out by
 * hand from 1698 W a metre and the factor 0.495. */
static radsel_request sample_request(void)
{
    radsel_request room;
    radsel_request_init(&room, sizeof room);
    strcpy(room.maker, "Valmorena");
    strcpy(room.kind, "Radiatori a piastra compatti");
    strcpy(room.product, "Tipo 22");
    room.output = 900;
    room.supply_temperature = 55;
    room.return_temperature = 45;
    room.room_temperature = 20;
    room.min_height = room.max_height = 600;
    room.max_depth = 110;
    room.max_length = 1400;
    return room;
}

static void finds_radiators_in_files(void)
{
    radsel_request room = sample_request();
    radsel_request other;
    radsel_rows* rows;
    radsel_row row;
    double factor = 0;
    int index = radsel_find_radiator(&room);
    CHECK(index >= 0 && is(radsel_last_error(), ""));
    CHECK(is(room.type_name, "C 22/600x1100") && room.chosen.output == 925);
    CHECK(room.chosen.length == 1100 && room.reread == 0 && room.factor == 0.495);
    CHECK(radsel_output_factor(55, 45, 20, &factor) == RADSEL_OK && factor == room.factor);

    CHECK(radsel_list_rows(&room, 0, &rows) == RADSEL_OK);
    radsel_row_init(&row, sizeof row);
    CHECK(radsel_rows_get(rows, (size_t)index, &row) == RADSEL_OK && is(row.name, room.type_name));
    CHECK(row.data.output == 925);
    CHECK(radsel_rows_get(rows, radsel_rows_count(rows), &row) == RADSEL_NOTHING);
    radsel_rows_free(rows);

    other = room;
    strcpy(other.maker, "Nessuno");
    CHECK(radsel_find_radiator(&other) == RADSEL_NOTHING && tells("Nessuno"));
    CHECK(is(other.type_name, room.type_name) && other.chosen.output == 925);
    other = room;
    other.min_height = other.max_height = 1;
    CHECK(radsel_find_radiator(&other) == RADSEL_NOTHING && !is(radsel_last_error(), ""));
}

static int list_has(radsel_list* list, const char* name)
{
    size_t i;
    int has = 0;
    for (i = 0; i < radsel_list_count(list); i++) {
        has = has || is(radsel_list_text(list, i), name);
    }
    CHECK(radsel_list_text(list, radsel_list_count(list)) == NULL);
    radsel_list_free(list);
    return has;
}

static void lists_catalogues_and_sizes(void)
{
    radsel_list* list = NULL;
    radsel_request room = sample_request();
    radsel_row first;
    double heights[2], depths[8], least = 0, largest = 0, litres = 0, waters[4];
    short row_heights[4], row_depths[4], row_lengths[4];
    size_t height_count = 2, depth_count = 8;
    CHECK(radsel_list_makers(&list) == RADSEL_OK && list_has(list, "Th\xc3\xb6rlinger"));
    CHECK(radsel_list_kinds("Valmorena", &list) == RADSEL_OK && list_has(list, room.kind));
    CHECK(radsel_list_products("Valmorena", room.kind, &list) == RADSEL_OK &&
          list_has(list, "Tipo 22"));
    CHECK(radsel_list_products("Valmorena", "x", &list) == RADSEL_NOTHING && list == NULL);

    CHECK(radsel_product_sizes(&room, heights, &height_count, depths, &depth_count) == RADSEL_OK);
    CHECK(height_count > 2 && depth_count > 0 && heights[0] < heights[1]);
    CHECK(radsel_min_depth(&room, &least) == RADSEL_OK && least == depths[0]);
    CHECK(radsel_max_depth(&room, &largest) == RADSEL_OK && largest == depths[depth_count - 1]);
    radsel_row_init(&first, sizeof first);
    CHECK(radsel_row_sizes(&room, row_heights, row_depths, row_lengths, waters, 4, &first) ==
          RADSEL_OK);
    CHECK(row_heights[0] == (short)heights[0] && row_lengths[0] < row_lengths[1]);
    CHECK(first.name[0] != '\0' && first.data.water == waters[0]);
    CHECK(radsel_water_content(&room, first.data.height / 1000, first.data.depth / 1000,
                               first.data.length / 1000, &litres) == RADSEL_OK &&
          litres == waters[0]);
    strcpy(room.product, "x");
    CHECK(radsel_min_depth(&room, &least) == RADSEL_NOTHING && least == -1);
    CHECK(radsel_row_sizes(&room, row_heights, row_depths, row_lengths, waters, 4, NULL) ==
              RADSEL_NOTHING &&
          row_heights[0] == -1 && waters[3] == -1);
}

/* What a program has that was compiled when requests ended behind the temperatures. */
static void takes_records_of_earlier_callers(void)
{
    radsel_request whole = sample_request();
    const size_t size = offsetof(radsel_request, factor);
    unsigned char* older = malloc(sizeof whole);
    int index;
    size_t i;
    if (older == NULL) {
        abort();
    }
    memset(older, 0x5a, sizeof whole);
    radsel_request_init((radsel_request*)older, size);
    memcpy(older + sizeof size, (char*)&whole + sizeof size, size - sizeof size);
    index = radsel_find_radiator((radsel_request*)older);
    CHECK(index >= 0 && index == radsel_find_radiator(&whole));
    for (i = size; i < sizeof whole; i++) {
        CHECK(older[i] == 0x5a);
    }
    /* A later caller's longer record: what this library does not know stays. */
    free(older);
    older = malloc(sizeof whole + 16);
    if (older == NULL) {
        abort();
    }
    radsel_request_init((radsel_request*)older, sizeof whole + 16);
    memset(older + sizeof whole, 0x5a, 16);
    memcpy(older + sizeof size, (char*)&whole + sizeof size, sizeof whole - sizeof size);
    CHECK(radsel_find_radiator((radsel_request*)older) == index);
    CHECK(((radsel_request*)older)->size == sizeof whole + 16 && older[sizeof whole] == 0x5a);
    free(older);
}

/* Where the last field of each record stood in the first version. Programs are compiled with these
 * places: fields come behind them, never between. (Platforms with 8 bytes a pointer.) */
static void keeps_the_layout_of_the_first_version(void)
{
    if (sizeof(void*) != 8) {
        return;
    }
    CHECK(offsetof(radsel_radiator, water) == 64 && sizeof(radsel_radiator) == 72);
    CHECK(offsetof(radsel_row, data) == 264 && offsetof(radsel_request, chosen) == 1424);
    CHECK(offsetof(radsel_valve, presetting) == 2784);
    CHECK(offsetof(radsel_point, side_distance) == 72 && sizeof(radsel_point) == 80);
    CHECK(offsetof(radsel_connection, return_graphic) == 1728);
    CHECK(offsetof(radsel_connection_checks, fan_coil) == 20);
    CHECK(offsetof(radsel_drawn, return_text) == 640);
    CHECK(offsetof(radsel_layer, color) == 264 && offsetof(radsel_error_numbers, line) == 16);
    CHECK(offsetof(radsel_host, floor_of_room) == 112 &&
          offsetof(radsel_drawing, draw_point) == 72);
}

static void* ask_elsewhere(void* result)
{
    radsel_request room = sample_request();
    radsel_list* list = (radsel_list*)result;
    CHECK(radsel_list_makers(&list) == RADSEL_WRONG_THREAD && list == NULL);
    *(int*)result = radsel_find_radiator(&room);
    return NULL;
}

static void refuses_what_no_call_can_be(void)
{
    radsel_request room = sample_request();
    radsel_request before;
    double depth;
    CHECK(radsel_find_radiator(NULL) == RADSEL_BAD_ARGUMENT);
    room.size = 0;
    CHECK(radsel_find_radiator(&room) == RADSEL_BAD_ARGUMENT && tells("0 bytes"));
    room = sample_request();
    memset(room.kind, 'x', sizeof room.kind);
    before = room;
    CHECK(radsel_min_depth(&room, &depth) == RADSEL_BAD_ARGUMENT);
    CHECK(same_bytes(&before, &room, sizeof room));
    room = sample_request();
    CHECK(radsel_min_depth(&room, NULL) == RADSEL_BAD_ARGUMENT);
    CHECK(radsel_set_text(99, "x") == RADSEL_BAD_ARGUMENT && tells("99"));
    CHECK(radsel_set_number(0, 1) == RADSEL_BAD_ARGUMENT);
    CHECK(radsel_list_makers(NULL) == RADSEL_BAD_ARGUMENT);
}

static void tells_file_and_line(const char* scratch)
{
    radsel_request room = sample_request();
    radsel_valve valve;
    char path[1024];
    FILE* file;
    snprintf(path, sizeof path, "%s/Valmorena/hk.tga", scratch);
    file = fopen(path, "wb");
    if (file == NULL) {
        abort();
    }
    fputs("010;1;x\r\n700;what is this\r\n", file);
    fclose(file);
    CHECK(radsel_set_text(RADSEL_CATALOGUE_FOLDER, scratch) == RADSEL_OK);
    CHECK(radsel_find_radiator(&room) == RADSEL_BAD_FILE);
    CHECK(strstr(radsel_last_error_file(), "Valmorena/hk.tga") != NULL);
    CHECK(radsel_last_error_line() > 0 && tells("hk.tga"));
    CHECK(room.reread == 1);

    radsel_valve_init(&valve, sizeof valve);
    CHECK(radsel_fetch_valves_by_key("Rotto", "000000000000000000000000000000000000", NULL, NULL,
                                     &valve, NULL) == RADSEL_BAD_FILE);
    CHECK(tells("Rotto/ha.tga") && is(valve.maker, ""));
}

static void tells_a_folder_that_is_not_there(const char* scratch)
{
    radsel_list* list;
    char path[1024];
    snprintf(path, sizeof path, "%s/nowhere", scratch);
    CHECK(radsel_set_text(RADSEL_CATALOGUE_FOLDER, path) == RADSEL_OK);
    CHECK(radsel_list_makers(&list) == RADSEL_BAD_FILE && list == NULL && tells(path));
    CHECK(is(radsel_last_error_file(), path));
    CHECK(radsel_set_text(RADSEL_CATALOGUE_FOLDER, "") == RADSEL_OK);
    CHECK(radsel_list_makers(&list) == RADSEL_OK && radsel_list_count(list) == 0);
    radsel_list_free(list);
    CHECK(radsel_set_text(RADSEL_VALVE_FOLDER, path) == RADSEL_OK);
    CHECK(radsel_list_valve_makers(&list) == RADSEL_BAD_FILE && list == NULL && tells(path));
    CHECK(is(radsel_last_error_file(), path));
    CHECK(radsel_set_text(RADSEL_VALVE_FOLDER, "") == RADSEL_OK);
    CHECK(radsel_list_valve_makers(&list) == RADSEL_OK && radsel_list_count(list) == 0);
    radsel_list_free(list);
}

/* ------------------------------------------------------------------ a host with callbacks */

struct host
{
    int calls;
    int fail;
    int wrong_thread;
    unsigned char store[65536];
    size_t stored;
    char message[256];
    int points;
};

static int list_makers(void* user, radsel_names* makers)
{
    struct host* host = user;
    host->calls++;
    radsel_names_add(makers, "M\xc3\xbcller");
    radsel_names_add(makers, "Other");
    return radsel_names_add(makers, "M\xc3\xbcller");
}

static int read_maker(void* user, const char* maker, double output_en442,
                      radsel_catalogue* catalogue)
{
    struct host* host = user;
    radsel_row row;
    int length;
    pthread_t thread;
    CHECK(is(maker, "M\xc3\xbcller") && output_en442 > 0);
    if (host->fail == 1) {
        return radsel_host_failure("no line to the server", "prices.db", 7);
    }
    if (host->fail == 3 && radsel_catalogue_add_product(catalogue, "P") != RADSEL_OK) {
        return radsel_host_failure(radsel_last_error(), NULL, 0);
    }
    if (pthread_create(&thread, NULL, ask_elsewhere, &host->wrong_thread) != 0) {
        abort();
    }
    pthread_join(thread, NULL);
    CHECK(radsel_set_host(NULL) == RADSEL_BAD_ARGUMENT);

    radsel_row_init(&row, sizeof row);
    row.data.form = 'S';
    CHECK(radsel_catalogue_add_row(catalogue, &row) == RADSEL_BAD_ARGUMENT);
    CHECK(radsel_catalogue_add_kind(catalogue, "K") == RADSEL_OK);
    CHECK(radsel_catalogue_add_product(catalogue, "P") == RADSEL_OK);
    for (length = 10; length <= 20; length++) {
        snprintf(row.name, sizeof row.name, "S%d", length);
        row.data.sections = length;
        row.data.length = length * 60.0;
        row.data.height = 600;
        row.data.depth = 150;
        row.data.output_en442 = 100;
        CHECK(radsel_catalogue_add_row(catalogue, &row) == RADSEL_OK);
    }
    CHECK(radsel_catalogue_add_kind(catalogue, "K2") == RADSEL_OK);
    CHECK(radsel_catalogue_add_kind(catalogue, "K") == RADSEL_OK);
    return RADSEL_OK;
}

static int read_store(void* user, const char* name, radsel_bytes* bytes)
{
    struct host* host = user;
    return is(name, "HkAuswahl.def") && host->stored > 0
               ? radsel_bytes_add(bytes, host->store, host->stored)
               : RADSEL_NOTHING;
}

static int write_store(void* user, const char* name, const void* data, size_t count)
{
    struct host* host = user;
    if (is(name, "HkAuswahl.def") && count <= sizeof host->store) {
        memcpy(host->store, data, count);
        host->stored = count;
    }
    return RADSEL_OK;
}

static int show_message(void* user, int icon, const char* caption, const char* text)
{
    struct host* host = user;
    (void)icon;
    (void)caption;
    snprintf(host->message, sizeof host->message, "%s", text);
    return RADSEL_OK;
}

static int get_text(void* user, int setting, char* buffer, size_t capacity)
{
    struct host* host = user;
    if (setting == RADSEL_LAYER_NAME && host->fail == 2) {
        memset(buffer, 'x', capacity);
        return RADSEL_OK;
    }
    return RADSEL_NOTHING;
}

static int floor_of_room(void* user, const char* room, char* buffer, size_t capacity)
{
    (void)user;
    (void)room;
    (void)buffer;
    (void)capacity;
    return RADSEL_NOTHING;
}

static int list_layers(void* user, radsel_names* layers)
{
    (void)user;
    return radsel_names_add(layers, "HEIZ");
}

static int draw_point(void* user, const double place[3], const double direction[3],
                      double side_distance, int color, int is_return)
{
    struct host* host = user;
    (void)direction;
    (void)side_distance;
    CHECK(color == (is_return ? 0xff0000 : 0x0000dc));
    CHECK(place[0] >= 1000);
    host->points++;
    return RADSEL_OK;
}

static radsel_request host_request(void)
{
    radsel_request room;
    radsel_request_init(&room, sizeof room);
    strcpy(room.maker, "M\xc3\xbcller");
    strcpy(room.kind, "K");
    strcpy(room.product, "P");
    room.output = 1500;
    room.supply_temperature = 75;
    room.return_temperature = 65;
    room.room_temperature = 20;
    return room;
}

static void asks_its_host(struct host* user, const radsel_host* host)
{
    radsel_request room = host_request();
    radsel_list* list;
    double litres = 1;
    CHECK(radsel_set_host(host) == RADSEL_OK);
    user->fail = 1;
    CHECK(radsel_find_radiator(&room) == RADSEL_HOST_FAILED && is(room.type_name, ""));
    CHECK(tells("no line to the server") && is(radsel_last_error_file(), "prices.db"));
    CHECK(radsel_last_error_line() == 7);
    user->fail = 3;
    CHECK(radsel_find_radiator(&room) == RADSEL_HOST_FAILED && tells("before its kind"));
    user->fail = 0;
    CHECK(radsel_find_radiator(&room) >= 0 && user->calls > 0);
    CHECK(is(room.type_name, "S15") && room.chosen.sections == 15);
    CHECK(radsel_water_content(&room, 0.6, 0.15, 0.9, &litres) == RADSEL_NOTHING && litres == 0);
    CHECK(tells("states none"));
    CHECK(user->wrong_thread == RADSEL_WRONG_THREAD);
    CHECK(radsel_list_makers(&list) == RADSEL_OK && list_has(list, "Other"));
    CHECK(radsel_list_kinds(room.maker, &list) == RADSEL_OK);
    CHECK(radsel_list_count(list) == 2 && is(radsel_list_text(list, 0), "K"));
    radsel_list_free(list);
}

static void shows_dialogs(struct host* user)
{
    radsel_request room = host_request();
    radsel_drawing drawing;
    radsel_layer layer;
    radsel_connection connection;
    radsel_connection_checks checks;
    radsel_valve valves[2];
    radsel_drawn drawn;
    radsel_drawing_init(&drawing, sizeof drawing);
    drawing.user = user;
    drawing.list_layers = list_layers;
    drawing.draw_point = draw_point;
    radsel_layer_init(&layer, sizeof layer);
    strcpy(layer.name, "HEIZ_$d");
    strcpy(room.room, "1.Bad");
    CHECK(radsel_choose_radiator(&room, &layer, NULL, 0) == RADSEL_OK);
    CHECK(is(layer.name, "HEIZ_1"));
    room = host_request();
    strcpy(layer.name, "HEIZ");
    CHECK(radsel_choose_radiator(&room, &layer, &drawing, 0) == RADSEL_OK);
    CHECK(is(room.type_name, "S15") && is(layer.name, "HEIZ") && user->stored > 0);
    CHECK(radsel_choose_product(&room) == RADSEL_OK && is(room.product, "P"));

    /* The layer is asked for before the dialog opens. */
    user->fail = 2;
    CHECK(radsel_choose_radiator(&room, NULL, &drawing, 0) == RADSEL_HOST_FAILED);
    CHECK(tells("get_text") && tells("no end"));
    user->fail = 0;

    radsel_valve_init(&valves[0], sizeof valves[0]);
    radsel_valve_init(&valves[1], sizeof valves[1]);
    CHECK(radsel_choose_valve(NULL, NULL, &valves[0]) == RADSEL_OK);

    radsel_valve_init(&valves[0], sizeof valves[0]);
    radsel_connection_init(&connection, sizeof connection);
    radsel_connection_checks_init(&checks, sizeof checks);
    radsel_drawn_init(&drawn, sizeof drawn);
    drawn.origin[0] = 2000;
    drawn.length = 1;
    drawn.height = 0.6;
    drawn.depth = 0.1;
    connection.flow.position[0] = connection.ret.position[0] = 0.5;
    connection.flow.position[2] = 0.5;
    connection.ret.position[2] = -0.5;
    CHECK(radsel_set_number(RADSEL_RETURN_COLOR, 0xff0000) == RADSEL_OK);
    CHECK(radsel_edit_connection(&connection, &valves[0], &valves[1], &checks, &drawn, 1,
                                 &drawing) == RADSEL_OK);
    CHECK(checks.valves == 1 && checks.type == 1 && user->points > 0);
    CHECK(connection.name[0] != '\0' && strncmp(connection.flow_text, "-0.5;", 5) == 0);
    CHECK(strncmp(drawn.flow_text, "-0.5;", 5) == 0 && strncmp(drawn.return_text, "-0.5;", 5) == 0);
    CHECK(radsel_reset_number(RADSEL_RETURN_COLOR) == RADSEL_OK);
}

static void fetches_valves(void)
{
    radsel_list* makers = NULL;
    radsel_valves* listed = NULL;
    radsel_valve valve, other, unknown;
    CHECK(radsel_list_valve_makers(&makers) == RADSEL_OK && radsel_list_count(makers) == 3);
    CHECK(radsel_list_valves(radsel_list_text(makers, 0), &listed) == RADSEL_OK);
    radsel_list_free(makers);
    radsel_valve_init(&valve, sizeof valve);
    CHECK(radsel_valves_get(listed, 0, &valve) == RADSEL_OK && strlen(valve.number) == 36);
    radsel_valves_free(listed);
    CHECK(valve.row_count == 0 && radsel_fetch_valves(&valve, NULL) == RADSEL_OK);
    CHECK(valve.row_count > 0 && valve.kv[valve.row_count - 1] > 0 && valve.nominal_diameter > 0);

    radsel_valve_init(&other, sizeof other);
    radsel_valve_init(&unknown, sizeof unknown);
    strcpy(unknown.note, "stays");
    CHECK(radsel_fetch_valves_by_key(valve.maker, valve.number, valve.maker,
                                     "000000000000000000000000000000000000", &other,
                                     &unknown) == RADSEL_NOTHING);
    CHECK(other.row_count == valve.row_count && is(other.name, valve.name));
    CHECK(unknown.row_count == 0 && is(unknown.note, "stays") && !is(radsel_last_error(), ""));
    radsel_valve_init(&unknown, sizeof unknown);
    CHECK(radsel_fetch_valves(&unknown, NULL) == RADSEL_NOTHING);
    CHECK(radsel_list_valves("Nessuno", &listed) == RADSEL_NOTHING && listed == NULL);
}

/* In the second folder the articles have no order numbers. */
static void fetches_valves_of_the_folder_that_is_set(const char* scratch)
{
    static const char number[] = "020001011000000000010000000001000100";
    radsel_valve valve;
    radsel_valve_init(&valve, sizeof valve);
    CHECK(radsel_fetch_valves_by_key("Fontespada", number, NULL, NULL, &valve, NULL) == RADSEL_OK);
    CHECK(is(valve.name, "FT-S10-N"));
    CHECK(radsel_set_text(RADSEL_VALVE_FOLDER, scratch) == RADSEL_OK);
    radsel_valve_init(&valve, sizeof valve);
    CHECK(radsel_fetch_valves_by_key("Fontespada", number, NULL, NULL, &valve, NULL) == RADSEL_OK);
    CHECK(is(valve.name, "") && valve.row_count > 0);
}

static void turns_points_into_text(void)
{
    radsel_point point = {{0.5, 0, -0.5}, {0.05, 0, 0.1}, {180, 90, 0}, 0.02};
    radsel_point read;
    char text[RADSEL_POINT_TEXT];
    double crossing = 0, wall = 0;
    int kind = 0;
    CHECK(radsel_point_to_text(&point, 0.1, 2, 0.04, text) == RADSEL_OK);
    CHECK(radsel_point_from_text(text, &read, &crossing, &kind, &wall) == 12);
    CHECK(same_bytes(&point, &read, sizeof point) && crossing == 0.1 && kind == 2 && wall == 0.04);
    CHECK(radsel_point_from_text("x", &read, NULL, NULL, NULL) == 0 && read.side_distance == 0.02);
}

int main(int argc, char** argv)
{
    static struct host user;
    radsel_host host;
    radsel_error_numbers from, to;
    char path[1024];
    if (argc != 3) {
        return 2;
    }
    CHECK(radsel_c_version() == RADSEL_C_VERSION);
    radsel_dummy_call();
    radsel_error_numbers_init(&from, sizeof from);
    radsel_error_numbers_init(&to, sizeof to);
    from.line = 7;
    CHECK(radsel_copy_error_numbers(&to, &from) == RADSEL_OK && to.line == 7);

    snprintf(path, sizeof path, "%s/catalogues", argv[1]);
    CHECK(radsel_set_text(RADSEL_CATALOGUE_FOLDER, path) == RADSEL_OK);
    snprintf(path, sizeof path, "%s/valves", argv[1]);
    CHECK(radsel_set_text(RADSEL_VALVE_FOLDER, path) == RADSEL_OK);
    snprintf(path, sizeof path, "%s/root", argv[2]);
    CHECK(radsel_set_text(RADSEL_SHARED_FOLDER, path) == RADSEL_OK);
    CHECK(radsel_set_text(RADSEL_LOCAL_FOLDER, argv[2]) == RADSEL_OK);
    keeps_the_layout_of_the_first_version();
    finds_radiators_in_files();
    lists_catalogues_and_sizes();
    takes_records_of_earlier_callers();
    refuses_what_no_call_can_be();
    fetches_valves();
    fetches_valves_of_the_folder_that_is_set(argv[2]);
    turns_points_into_text();
    tells_file_and_line(argv[2]);
    tells_a_folder_that_is_not_there(argv[2]);

    radsel_host_init(&host, sizeof host);
    host.user = &user;
    host.list_makers = list_makers;
    host.read_maker = read_maker;
    host.read_store = read_store;
    host.write_store = write_store;
    host.show_message = show_message;
    host.get_text = get_text;
    host.floor_of_room = floor_of_room;
    asks_its_host(&user, &host);
    shows_dialogs(&user);
    CHECK(radsel_set_host(NULL) == RADSEL_OK);
    return failures == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
