/* Shows the valve dialog above a window of another program, as that program would have it done.
 *
 *     owner_window VALVES WINDOW */

#include "radsel_c.h"

#include <stdlib.h>

int main(int argc, char** argv)
{
    radsel_valve valve;
    if (argc != 3 || radsel_set_text(RADSEL_VALVE_FOLDER, argv[1]) != RADSEL_OK) {
        return EXIT_FAILURE;
    }
    radsel_set_parent_window((uint64_t)strtol(argv[2], NULL, 10));
    radsel_valve_init(&valve, sizeof valve);
    return radsel_choose_valve(NULL, NULL, &valve) == RADSEL_OK ? EXIT_SUCCESS : EXIT_FAILURE;
}
