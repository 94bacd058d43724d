#include "terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

bool nTerminal::isTerminal(std::FILE* stream)
{
    return isatty(fileno(stream)) == 1;
}

int nTerminal::columns()
{
    winsize size = {};
    return ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0 ? size.ws_col : 80;
}
