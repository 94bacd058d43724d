#include "kdqtest.h"
#include "platform.h"

#include <windows.h>

using namespace nPlatform;

namespace {

/// The process's console itself, wherever the standard stream leads, and from now on that stream, too.
HANDLE console(DWORD stream, const wchar_t* name)
{
    const HANDLE handle = CreateFileW(name, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
    SetStdHandle(stream, handle);
    return handle;
}

DWORD modeOf(HANDLE handle)
{
    DWORD mode = 0;
    return GetConsoleMode(handle, &mode) ? mode : ~DWORD(0);
}

} // namespace

class TestConsole : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void keys()
    {
        const std::unique_ptr<ConsoleWindow> window = openConsoleWindow();
        QVERIFY(window);
        FlushConsoleInputBuffer(m_input);
        const auto press = [this](WORD virtualKey, wchar_t character, DWORD state = 0, BOOL isDown = TRUE,
                                  WORD count = 1) {
            INPUT_RECORD record{KEY_EVENT, {{isDown, count, virtualKey, 0, {character}, state}}};
            DWORD written = 0;
            WriteConsoleInputW(m_input, &record, 1, &written);
        };
        press('A', L'a');
        press('A', L'a', 0, FALSE);
        press('C', 3, LEFT_CTRL_PRESSED);
        press('Q', L'@', RIGHT_ALT_PRESSED | LEFT_CTRL_PRESSED); // AltGr
        press('B', L'b', LEFT_ALT_PRESSED);
        press(VK_LEFT, 0, LEFT_ALT_PRESSED); // a digit of a character's number
        press(VK_MENU, 0x20ac, 0, FALSE);    // and what it gave
        for (const wchar_t half : {L'\xd83d', L'\xde00'}) {
            press(0, half);
            press(0, half, 0, FALSE);
        }
        press(0, 0xd83d); // a half alone
        press(VK_HOME, 0);
        press(VK_RIGHT, 0, LEFT_CTRL_PRESSED | ENHANCED_KEY, TRUE, 3);
        press(VK_F1, 0);
        QString seen;
        while (window->hasKeys()) {
            const ConsoleKey key = window->wait();
            if (key.kind != ConsoleKey::Other)
                seen += QStringLiteral(" %1%2*%3%4")
                            .arg(QLatin1String(key.isModified ? "~" : ""), QString::number(key.count),
                                 QString::number(key.kind), key.text);
        }
        QCOMPARE(seen,
                 QString::fromUtf8(" 1*1a 1*1\3 1*1@ ~1*1b 1*1\xe2\x82\xac 1*1\xf0\x9f\x98\x80 1*6 ~3*3"));
    }

    /// Also where a program has the console obey escape sequences, as colours need it.
    void cells()
    {
        SetConsoleMode(m_output, modeOf(m_output) | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
        const DWORD inputMode = modeOf(m_input);
        const DWORD outputMode = modeOf(m_output);
        std::unique_ptr<ConsoleWindow> window = openConsoleWindow();
        const int last = window->size().column - 1;
        window->moveCursor({last - 1, 1});
        window->write(QStringLiteral("abc"));
        window->erase({last, 1}, 2);
        window->moveCursor({last - 1, 1});
        window->write(QStringLiteral("x"), true);
        CHAR_INFO shown[3] = {};
        SMALL_RECT where{SHORT(last - 1), 1, SHORT(last), 1};
        QVERIFY(ReadConsoleOutputW(m_output, shown, {2, 1}, {0, 0}, &where));
        QVERIFY(shown[0].Char.UnicodeChar == L'x' && (shown[0].Attributes & FOREGROUND_INTENSITY) != 0);
        QCOMPARE(shown[1].Char.UnicodeChar, L' ');
        window->write(QStringLiteral("y"));
        QCOMPARE(window->cursor().column, 0); // a full row ends at once
        window.reset();
        QCOMPARE(modeOf(m_input), inputMode);
        QCOMPARE(modeOf(m_output), outputMode);
    }

private:
    const HANDLE m_input = console(STD_INPUT_HANDLE, L"CONIN$");
    const HANDLE m_output = console(STD_OUTPUT_HANDLE, L"CONOUT$");
};

KDQ_TEST_MAIN(TestConsole)
#include "tst_console_windows.moc"
