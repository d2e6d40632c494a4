// SPDX-License-Identifier: MIT
// Copyright The VxPrinterStatus authors
//
// A host in C. It prints a line for each of the maker's label printers, then one for each change until
// the user presses Enter.
//
// Usage: c_host [CATALOGUE]
//
// CATALOGUE is the file roll.db with the names of supplies; without it, the one beside this program is
// used.
#include <stdio.h>
#include <vxkit.h>

// Says what was wrong with the last call.
static int fail(const char* what)
{
    char error[1024];
    vxkit_last_error(error, sizeof error, NULL);
    fprintf(stderr, "c_host: %s: %s\n", what, error);
    return 1;
}

// What is left in a slot. Not known and empty are something else than nothing left.
static void print_slot(vxkit_readings* printers, size_t index, int32_t slot, const char* title)
{
    char name[256];
    double meters;
    switch (vxkit_slot_number(printers, index, slot, VXKIT_NUMBER_METERS, &meters)) {
    case VXKIT_OK:
        if (vxkit_slot_text(printers, index, slot, VXKIT_SLOT_TEXT_NAME, name, sizeof name, NULL) !=
            VXKIT_OK)
            name[0] = '\0';
        printf("; %s %s, %.1f m", title, name, meters);
        break;
    case VXKIT_EMPTY:
        printf("; %s empty", title);
        break;
    case VXKIT_NO_SLOT:
        break;
    default:
        printf("; %s not known", title);
    }
}

static void print_printer(vxkit_readings* printers, size_t index)
{
    char name[256];
    char status[256];
    // Both are empty texts in the unlikely case that they do not fit.
    vxkit_reading_text(printers, index, VXKIT_TEXT_NAME, name, sizeof name, NULL);
    vxkit_reading_text(printers, index, VXKIT_TEXT_STATUS_SHORT_TITLE, status, sizeof status, NULL);
    printf("%s: %s", name, status);
    print_slot(printers, index, VXKIT_SLOT_SUPPLY, "supply");
    print_slot(printers, index, VXKIT_SLOT_RIBBON1, "ribbon 1");
    print_slot(printers, index, VXKIT_SLOT_RIBBON2, "ribbon 2");
    printf("\n");
    fflush(stdout);
}

// Is called on a thread of the session.
static void on_change(vxkit_session* session, int32_t change, const char* printer,
                      const char* old_name, uint32_t fields, void* user_data)
{
    vxkit_readings* reading = NULL;
    (void)change;
    (void)old_name;
    (void)user_data;
    // Most reports change nothing that is printed.
    if (!(fields & (VXKIT_CHANGED_STATUS | VXKIT_CHANGED_SUPPLY | VXKIT_CHANGED_RIBBON1 |
                    VXKIT_CHANGED_RIBBON2)))
        return;
    if (vxkit_read(session, printer, &reading) == VXKIT_OK) {
        print_printer(reading, 0);
        vxkit_readings_free(reading);
    }
}

int main(int argc, char* argv[])
{
    vxkit_session* session = NULL;
    vxkit_readings* printers = NULL;
    uint64_t callback = 0;
    size_t count = 0;
    size_t i;

    if (vxkit_create(&session) != VXKIT_OK)
        return fail("no session");
    if (argc > 1 && vxkit_set_option(session, VXKIT_OPTION_CATALOGUE, argv[1]) != VXKIT_OK)
        return fail("no catalogue");
    if (vxkit_start(session) != VXKIT_OK)
        return fail("the session cannot be started");

    if (vxkit_read_all(session, &printers) != VXKIT_OK)
        return fail("the printers cannot be read");
    vxkit_readings_count(printers, &count);
    for (i = 0; i < count; ++i)
        print_printer(printers, i);
    vxkit_readings_free(printers);

    if (vxkit_add_callback(session, on_change, NULL, &callback) != VXKIT_OK)
        return fail("changes cannot be followed");
    getchar();
    vxkit_destroy(session);
    return 0;
}
