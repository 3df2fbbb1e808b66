/*
 * A CAD program in plain C that binds radsel_c. Its catalogue of radiators and its drawing are its
 * own; the valves come from a folder of VDI 3805 files.
 *
 *     c_host VALVES           finds a radiator and a valve silently
 *     c_host VALVES dialogs   then lets the user choose both and set up the connection
 */

#include "radsel_c.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

/* ------------------------------------------------------------------ the program's own data */

/* A series of panel radiators: all lengths of one height and depth. */
struct series
{
    const char* type;
    double height, depth;
    double watts_per_metre, litres_per_metre;
};

static const struct series panels[] = {
    {"P 11", 600, 60, 1000, 3.0},
    {"P 22", 600, 100, 1700, 6.0},
    {"P 33", 600, 160, 2400, 9.0},
};

/* The layers of the drawing. */
static const char* const layers[] = {"HEIZ_HK", "HEIZ_ROHR"};

/* What this program knows of itself while the module works. */
struct cad
{
    const char* valves;
    const char* name;
};

/* ------------------------------------------------------------------ what the module asks of it */

static int get_text(void* user, int setting, char* buffer, size_t capacity)
{
    const struct cad* cad = user;
    const char* text;
    size_t length;
    switch (setting) {
    case RADSEL_VALVE_FOLDER:
        text = cad->valves;
        break;
    case RADSEL_LAYER_NAME:
        text = layers[0];
        break;
    case RADSEL_PROGRAM_NAME:
        text = cad->name;
        break;
    default:
        return RADSEL_NOTHING; /* the library's default */
    }
    length = strlen(text);
    if (length >= capacity) {
        return radsel_host_failure("the path is too long", NULL, 0);
    }
    memcpy(buffer, text, length + 1);
    return RADSEL_OK;
}

static int get_number(void* user, int setting, int* value)
{
    (void)user;
    if (setting != RADSEL_DRAWING_UNIT && setting != RADSEL_USER_UNIT) {
        return RADSEL_NOTHING;
    }
    *value = 1000; /* this drawing is in millimetres */
    return RADSEL_OK;
}

static int list_makers(void* user, radsel_names* makers)
{
    (void)user;
    return radsel_names_add(makers, "C Radiators");
}

static int read_maker(void* user, const char* maker, double output_en442,
                      radsel_catalogue* catalogue)
{
    size_t i;
    int length;
    (void)user;
    (void)maker;
    (void)output_en442; /* all lengths are made anyway */
    radsel_catalogue_add_kind(catalogue, "Panels");
    for (i = 0; i < sizeof panels / sizeof panels[0]; i++) {
        radsel_catalogue_add_product(catalogue, panels[i].type);
        for (length = 400; length <= 2000; length += 200) {
            radsel_row row;
            radsel_row_init(&row, sizeof row);
            snprintf(row.name, sizeof row.name, "%s/%d", panels[i].type, length);
            row.data.form = 'M';
            row.data.height = panels[i].height;
            row.data.depth = panels[i].depth;
            row.data.length = length;
            row.data.output_en442 = panels[i].watts_per_metre;
            row.data.exponent = 1.33;
            row.data.water = panels[i].litres_per_metre * length / 1000;
            if (radsel_catalogue_add_row(catalogue, &row) != RADSEL_OK) {
                return radsel_host_failure(radsel_last_error(), NULL, 0);
            }
        }
    }
    return RADSEL_OK;
}

static int show_message(void* user, int icon, const char* caption, const char* text)
{
    (void)user;
    (void)icon;
    fprintf(stderr, "%s: %s\n", caption, text);
    return RADSEL_OK;
}

/* ------------------------------------------------------------------ the drawing */

static int list_layers(void* user, radsel_names* names)
{
    size_t i;
    (void)user;
    for (i = 0; i < sizeof layers / sizeof layers[0]; i++) {
        radsel_names_add(names, layers[i]);
    }
    return RADSEL_OK;
}

static int get_layer_color(void* user, const char* layer, int* color)
{
    (void)user;
    *color = strcmp(layer, layers[0]) == 0 ? 1 : 5;
    return RADSEL_OK;
}

static int draw_point(void* user, const double place[3], const double direction[3],
                      double side_distance, int color, int is_return)
{
    (void)user;
    (void)direction;
    (void)side_distance;
    (void)color;
    printf("%s at %.0f %.0f %.0f\n", is_return ? "return" : "flow", place[0], place[1], place[2]);
    return RADSEL_OK;
}

/* ------------------------------------------------------------------ the four jobs */

static int fail(const char* what)
{
    const char* why = radsel_last_error();
    fprintf(stderr, "%s%s%s\n", what, *why == '\0' ? "" : ": ", why);
    return EXIT_FAILURE;
}

static void print_choice(const char* how, const radsel_request* room)
{
    printf("%s %s: %.0f x %.0f x %.0f mm, %.0f W, %.1f l\n", how, room->type_name,
           room->chosen.height, room->chosen.depth, room->chosen.length, room->chosen.output,
           room->chosen.water);
}

/* The first maker's first valve that has a kv table. */
static int find_valve(radsel_valve* found)
{
    radsel_list* makers;
    radsel_valves* valves;
    size_t i;
    int result = radsel_list_valve_makers(&makers);
    if (result < 0) {
        return result;
    }
    if (radsel_list_count(makers) == 0) {
        radsel_list_free(makers);
        return RADSEL_NOTHING;
    }
    result = radsel_list_valves(radsel_list_text(makers, 0), &valves);
    radsel_list_free(makers);
    if (result < 0) {
        return result;
    }
    result = RADSEL_NOTHING;
    for (i = 0; i < radsel_valves_count(valves) && result != RADSEL_OK; i++) {
        radsel_valve_init(found, sizeof *found);
        radsel_valves_get(valves, i, found);
        if (radsel_fetch_valves(found, NULL) == RADSEL_OK && found->row_count > 0) {
            result = RADSEL_OK;
        }
    }
    radsel_valves_free(valves);
    return result;
}

static int choose_radiator(radsel_request* room, const radsel_drawing* drawing)
{
    radsel_layer layer;
    int result;
    radsel_layer_init(&layer, sizeof layer);
    result = radsel_choose_radiator(room, &layer, drawing, 1);
    if (result == RADSEL_OK) {
        print_choice("chosen", room);
    }
    return result;
}

static int edit_connection(const radsel_request* room, radsel_valve* flow_valve,
                           const radsel_drawing* drawing)
{
    radsel_connection connection;
    radsel_connection_checks checks;
    radsel_valve return_valve;
    radsel_drawn drawn;
    int result;
    radsel_connection_init(&connection, sizeof connection);
    radsel_connection_checks_init(&checks, sizeof checks);
    radsel_valve_init(&return_valve, sizeof return_valve);
    radsel_drawn_init(&drawn, sizeof drawn);
    checks.selectable = 1;
    drawn.length = room->chosen.length / 1000;
    drawn.depth = room->chosen.depth / 1000;
    drawn.height = room->chosen.height / 1000;
    /* Flow at the top of the right side, return at its foot, both 20 mm from the end. */
    connection.flow.position[0] = 0.5;
    connection.flow.position[2] = 0.5;
    connection.flow.side_distance = 0.02;
    connection.ret = connection.flow;
    connection.ret.position[2] = -0.5;

    result =
        radsel_edit_connection(&connection, flow_valve, &return_valve, &checks, &drawn, 1, drawing);
    if (result == RADSEL_OK) {
        printf("connected: flow %s, return %s\n", connection.flow_text, connection.return_text);
    }
    return result;
}

int main(int argc, char** argv)
{
    struct cad cad = {NULL, "C CAD"};
    radsel_host host;
    radsel_drawing drawing;
    radsel_request room;
    radsel_valve valve;
    if (argc < 2) {
        fprintf(stderr, "usage: c_host VALVES [dialogs]\n");
        return EXIT_FAILURE;
    }
    cad.valves = argv[1];

    radsel_host_init(&host, sizeof host);
    host.user = &cad;
    host.get_text = get_text;
    host.get_number = get_number;
    host.list_makers = list_makers;
    host.read_maker = read_maker;
    host.show_message = show_message;
    if (radsel_set_host(&host) != RADSEL_OK) {
        return fail("host");
    }
    radsel_drawing_init(&drawing, sizeof drawing);
    drawing.user = &cad;
    drawing.list_layers = list_layers;
    drawing.get_layer_color = get_layer_color;
    drawing.draw_point = draw_point;

    radsel_request_init(&room, sizeof room);
    strcpy(room.maker, "C Radiators");
    strcpy(room.kind, "Panels");
    strcpy(room.product, "P 22");
    room.output = 1000;
    room.supply_temperature = 55;
    room.return_temperature = 45;
    room.room_temperature = 20;
    if (radsel_find_radiator(&room) < 0) {
        return fail("no radiator");
    }
    print_choice("found", &room);

    if (find_valve(&valve) != RADSEL_OK) {
        return fail("no valve");
    }
    printf("valve %s: DN %.0f, %d rows, kv %.3f to %.3f\n", valve.name, valve.nominal_diameter,
           valve.row_count, valve.kv[0], valve.kv[valve.row_count - 1]);

    if (argc > 2) {
        if (choose_radiator(&room, &drawing) < 0) {
            return fail("no choice");
        }
        if (edit_connection(&room, &valve, &drawing) < 0) {
            return fail("no connection");
        }
    }
    return EXIT_SUCCESS;
}
