#include "terminal.h"

#include <io.h>
#include <windows.h>

bool nTerminal::isTerminal(std::FILE* stream)
{
    return _isatty(_fileno(stream)) != 0;
}

int nTerminal::columns()
{
    CONSOLE_SCREEN_BUFFER_INFO info;
    if (GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info) == 0)
        return 80;
    return info.srWindow.Right - info.srWindow.Left + 1;
}
