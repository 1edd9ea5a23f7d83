// Writes how libcups' two ways of asking for destinations see a queue and its instances:
//
//   destsreader QUEUE INSTANCE
//
// A program of its own, because libcups reads HOME and the name of its server once only.

#include <cstdio>

#include <cups/cups.h>

namespace {

void write(const char *how, const cups_dest_t &dest)
{
    std::printf("%s %s/%s", how, dest.name, dest.instance ? dest.instance : "-");
    for (const char *name :
         {"QXMediaType", "number-up", "copies", "page-ranges", "sides", "media"}) {
        const char *value = cupsGetOption(name, dest.num_options, dest.options);
        std::printf(" %s=%s", name, value ? value : "");
    }
    std::printf("\n");
}

} // namespace

int main(int count, char **arguments)
{
    if (count != 3)
        return 2;
    if (cups_dest_t *dest = cupsGetNamedDest(CUPS_HTTP_DEFAULT, arguments[1], arguments[2])) {
        write("named", *dest);
        cupsFreeDests(1, dest);
    }
    cups_dest_t *dests = nullptr;
    const int number = cupsGetDests2(CUPS_HTTP_DEFAULT, &dests);
    for (int i = 0; i < number; ++i)
        write("listed", dests[i]);
    cupsFreeDests(number, dests);
    return 0;
}
