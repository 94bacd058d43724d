#include "duel.h"
#include "reals.h"

#include <kdQCore/CFEDatLineWriter>

#include <benchmark/benchmark.h>
#include <charconv>
#include <double-conversion/double-conversion.h>
#include <fmt/compile.h>
#include <fmt/format.h>

namespace {

constexpr int width = 20;
constexpr std::size_t room = 128;

int formatChars(double value, std::chars_format format, int decimals, char* out)
{
    return static_cast<int>(std::to_chars(out, out + room, value, format, decimals).ptr - out);
}

int formatGoogle(double value, int decimals, char* out)
{
    static const double_conversion::DoubleToStringConverter converter(0, "inf", "nan", 'E', 0, 0, 0, 0);
    double_conversion::StringBuilder builder(out, room);
    converter.ToExponential(value, decimals, &builder);
    return builder.position();
}

template <typename Format>
std::function<void()> overAll(const std::vector<double>& values, Format format)
{
    return [&values, format] {
        char text[room];
        for (const double value : values) {
            benchmark::DoNotOptimize(format(value, text));
            benchmark::ClobberMemory();
        }
    };
}

bool compare(const char* title, const std::vector<double>& values)
{
    const CFEDatLineWriter writer(CFEDatLineWriter::extended, CFEDatLineWriter::fixed);
    const std::string ours = "CFEDatLineWriter::formatDouble";
    const std::string naive = "snprintf \"%20.20E\" and cut";
    const std::string chars20 = "to_chars, 20 decimals, and cut";
    Duel duel(title, static_cast<double>(values.size()));
    duel.add(naive, overAll(values, [](double v, char* out) { return reals::formatNaive(v, width, out); }));
    duel.add(chars20, overAll(values, [](double v, char* out) {
                 return reals::cut(out, formatChars(v, std::chars_format::scientific, 20, out), width, 'e');
             }));
    duel.add("double-conversion, 20 decimals, and cut", overAll(values, [](double v, char* out) {
                 return reals::cut(out, formatGoogle(v, 20, out), width, 'E');
             }));
    duel.add("snprintf \"%20.13E\"",
             overAll(values, [](double v, char* out) { return std::snprintf(out, room, "%20.13E", v); }));
    duel.add("fmt \"{:20.13E}\"", overAll(values, [](double v, char* out) {
                 return static_cast<int>(fmt::format_to(out, FMT_STRING("{:20.13E}"), v) - out);
             }));
    duel.add("to_chars, 13 decimals", overAll(values, [](double v, char* out) {
                 return formatChars(v, std::chars_format::scientific, 13, out);
             }));
    duel.add("double-conversion, 13 decimals",
             overAll(values, [](double v, char* out) { return formatGoogle(v, 13, out); }));
    duel.add("to_chars, shortest", overAll(values, [](double v, char* out) {
                 return static_cast<int>(std::to_chars(out, out + room, v).ptr - out);
             }));
    duel.add("fmt, shortest", overAll(values, [](double v, char* out) {
                 return static_cast<int>(fmt::format_to(out, FMT_COMPILE("{}"), v) - out);
             }));
    duel.add(ours,
             overAll(values, [&writer](double v, char* out) { return writer.formatDouble(v, false, out); }));
    duel.run(7);
    const bool naiveHeld = duel.demand(ours, naive, 14.0);
    const bool charsHeld = duel.demand(ours, chars20, 3.5);
    return duel.demandAgainstFastest(ours, 2.0) && naiveHeld && charsHeld;
}

} // namespace

int main()
{
    constexpr std::size_t count = 500000;
    std::puts("One real into a field of 20 columns, through the writer's public function");
    bool held = compare("uniform in [-1000, 1000]", reals::uniform(count));
    held = compare("short decimals", reals::shortDecimals(count)) && held;
    held = compare("random bits in 1e-99..1e100", reals::anyBits(count)) && held;
    return held ? 0 : 1;
}
