#include "dialog/task/PrintRequest.h"

#include "dialog/printers/PrinterId.h"

namespace corvana {

int wantedAmongFiles(const PrintRequest &request)
{
    for (int i = 0; i < request.printers.size(); ++i) {
        if (request.wantedPrinter.isEmpty() ||
            isCalled(request.printers.at(i), request.wantedPrinter))
            return i;
    }
    return -1;
}

} // namespace corvana
