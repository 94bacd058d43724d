#include "shellexamples.h"

namespace {

struct Example {
    const char* command;
    const char* lines;
};

constexpr const char tcpServer[] = "tcp serve port 4711\ntcp receive\ntcp send all well";
constexpr const char tcpClient[] = "tcp connect localhost 4711\ntcp send status?\ntcp receive\ntcp close";
constexpr const char remoteClient[] =
    "remote connect localhost 4711\nremote run table import iso834_fire_curve.csv as fire\n"
    "remote run 'table list; undo'\nremote close";

constexpr Example examples[] = {
    {"help", "help table import"},
    {"history", "history"},
    {"quit", "quit"},
    {"redo", "parameter define power = 24*20\nundo\nredo"},
    {"undo", "parameter define power = 24*20\nundo\nparameter list"},
    {"language", "language de\nhelp quit\nlanguage en"},
    {"list", "list"},

    {"table list", "table import iso834_fire_curve.csv as fire\ntable list"},
    {"table import", "table import iso834_fire_curve.csv as fire\ntable show fire 3"},
    {"table load",
     "table import iso834_fire_curve.csv as fire\ntable export xml fire fire.xml\ntable load fire.xml as "
     "again"},
    {"table export", "table import iso834_fire_curve.csv as fire\ntable export text fire fire.txt tab"},
    {"table show", "table import iso834_fire_curve.csv as fire\ntable show fire 5"},
    {"table info", "table import steel_s355_en1993.csv as steel\ntable info steel"},
    {"table lookup", "table import steel_s355_en1993.csv as steel\ntable lookup steel 250 conductivity"},
    {"table convert",
     "table import iso834_fire_curve.csv as fire\ntable convert fire x s y K\ntable lookup fire 60"},
    {"table unit", "formula tabulate 20+t over t from 0 to 60 as ramp\ntable unit ramp x s y degC"},
    {"table extract",
     "table import steel_s355_en1993.csv as steel\ntable extract steel temperature conductivity as k"},
    {"table copy", "table import iso834_fire_curve.csv as fire\ntable copy fire fire2"},
    {"table rename", "table import iso834_fire_curve.csv as fire\ntable rename fire 'ISO 834'"},
    {"table remove", "table import iso834_fire_curve.csv as fire\ntable remove fire"},
    {"table sort", "formula tabulate x^2 over x from 2 to 0 as falling\ntable sort falling"},
    {"table scale", "formula tabulate x^2 over x from 0 to 2 as a\ntable scale a y 0.5"},
    {"table combine",
     "formula tabulate x^2 over x from 0 to 2 as a\nformula tabulate 1+x over x from 0 to 2 as b\n"
     "table combine a sum b as both\ntable lookup both 2"},

    {"parameter define", "parameter define power = voltage*current\nparameter define voltage = 24"},
    {"parameter list", "parameter define area = pi*r^2\nparameter define r = 5\nparameter list"},
    {"parameter value", "parameter define area = pi*r^2\nparameter define r = 5\nparameter value area"},
    {"parameter remove", "parameter define r = 5\nparameter remove r"},

    {"formula check", "formula check -x^2 + sin(30)"},
    {"formula variables", "parameter define r = 5\nformula variables pi*r^2*h"},
    {"formula evaluate",
     "formula evaluate 2*sin(30)\nformula evaluate '54 - 0.0333*T' over T from 20 to 800 points 4"},
    {"formula tabulate",
     "formula tabulate '54 - 0.0333*T' over T from 20 to 800 xunit degC yunit 'W/(m K)' as conductivity"},

    {"heat new", "heat new casehardening as gear\nheat list gear"},
    {"heat list", "heat new quenchtemper as shaft\nheat list"},
    {"heat show", "heat new quenchtemper as shaft\nheat show shaft 1"},
    {"heat set",
     "table import quench_oil_60.csv as oil\nheat new casehardening as gear\n"
     "heat set gear 1 duration 1.5 h temperature 920 degC htc table oil"},
    {"heat enable", "heat new quenchtemper as shaft\nheat disable shaft 0 1\nheat enable shaft 1"},
    {"heat disable", "heat new quenchtemper as shaft\nheat disable shaft 0\nheat list shaft"},
    {"heat remove", "heat new quenchtemper as shaft\nheat remove shaft"},
    {"heat save", "heat new quenchtemper as shaft\nheat save shaft shaft.xml"},
    {"heat load", "heat new quenchtemper as shaft\nheat save shaft shaft.xml\nheat load shaft.xml as again"},
    {"heat compare", "heat new quenchtemper as a\nheat new quenchtemper as b\nheat compare a b"},
    {"heat curve", "heat new quenchtemper as shaft\nheat curve shaft as profile\ntable show profile 4"},
    {"heat extract",
     "table import quench_oil_60.csv as oil\nheat new casehardening as gear\n"
     "heat set gear 1 htc table oil\nheat extract gear 1 htc as used"},
    {"heat predefined",
     "table import quench_oil_60.csv as 'Oil 60'\ntable export xml 'Oil 60' oil.xml\nheat predefined ."},
    {"heat collect",
     "table import quench_oil_60.csv as 'Oil 60'\ntable export xml 'Oil 60' oil.xml\n"
     "heat new casehardening as gear\nheat set gear 1 htc predefined 'Oil 60'\n"
     "heat collect gear from . to project"},

    {"plot table", "table import iso834_fire_curve.csv as fire\nplot table fire to fire.svg title 'ISO 834'"},
    {"plot formula", "plot formula '54 - 0.0333*T' over T from 20 to 800 to k.svg xunit degC"},
    {"plot heat", "heat new quenchtemper as shaft\nplot heat shaft to shaft.png size 800x500"},

    {"csv export",
     "table import iso834_fire_curve.csv as fire\n"
     "csv export fire fire_K.csv separator ';' decimal comma units K titles"},
    {"csv settings", "csv settings separator ';' decimal point"},

    {"deck open", "deck open plate.dat fixed\ndeck title Steel plate in the standard fire"},
    {"deck close", "deck open plate.dat\ndeck comment all of it\ndeck close"},
    {"deck flush", "deck open plate.dat\ndeck comment half of it\ndeck flush"},
    {"deck info", "deck open plate.dat fixed\ndeck info"},
    {"deck format", "deck open plate.dat free\ndeck format fixed\ndeck integers 8 1 2 3"},
    {"deck title", "deck open plate.dat\ndeck title Steel plate"},
    {"deck comment", "deck open plate.dat\ndeck comment heated from below"},
    {"deck keyword", "deck open plate.dat\ndeck keyword end option"},
    {"deck key", "deck open plate.dat fixed\ndeck key elements\ndeck text 43\ndeck break"},
    {"deck text", "deck open plate.dat\ndeck text 'sizing,0,'\ndeck break"},
    {"deck break", "deck open plate.dat\ndeck text version,14\ndeck break"},
    {"deck element", "deck open plate.dat\ndeck element 43"},
    {"deck feature", "deck open plate.dat\ndeck feature 5703"},
    {"deck nodal", "deck open plate.dat\ndeck nodal 12"},
    {"deck loadcase", "deck open plate.dat\ndeck loadcase fire"},
    {"deck integers", "deck open plate.dat\ndeck integers 8 1 2 3 4"},
    {"deck reals", "deck open plate.dat\ndeck reals 4 0.5 2.1e5"},
    {"deck column",
     "table import iso834_fire_curve.csv as fire\ndeck open plate.dat\ndeck column 4 fire temperature"},
    {"deck section", "deck open plate.dat\ndeck section table"},
    {"deck table",
     "table import iso834_fire_curve.csv as fire\ndeck open plate.dat\n"
     "deck table fire id 1 variable 1 hold"},
    {"deck grid",
     "table import s355_stress_strain_en1993.csv as stress\ndeck open plate.dat\n"
     "deck grid stress id 2 variable 7 variable2 12 from degC to K"},
    {"deck formula",
     "parameter define slope = -0.0333\ndeck open plate.dat\n"
     "deck formula k id 3 variable 12 formula '54 + slope*v1'"},
    {"deck solver", "deck open plate.dat\ndeck solver mumps nonsymmetric"},
    {"deck process", "deck open plate.dat\ndeck process 3d material 1"},
    {"deck autoload", "deck open plate.dat\ndeck autoload time 10 steps 20"},
    {"deck pointload", "deck open plate.dat\ndeck pointload nodes top body 1 force 0 0 -500 3d"},
    {"deck pointcurrent", "deck open plate.dat\ndeck pointcurrent label weld node tip current 1.5 unit kA"},
    {"deck check", "deck open plate.dat\ndeck solver mumps\ndeck close\ndeck check plate.dat"},
    {"deck show", "deck open plate.dat\ndeck solver mumps\ndeck close\ndeck show plate.dat"},
    {"deck diff",
     "deck open a.dat\ndeck solver mumps\ndeck close\ndeck open b.dat fixed\ndeck solver mumps\n"
     "deck close\ndeck diff a.dat b.dat tolerance 1e-6"},
    {"deck patch",
     "deck open plate.dat\ndeck comment old\ndeck solver mumps\ndeck close\n"
     "deck open lines.txt\ndeck solver pardiso\ndeck close\n"
     "deck patch plate.dat replace solver with lines.txt keep"},
    {"deck tables",
     "table import iso834_fire_curve.csv as fire\ndeck open plate.dat\n"
     "deck table fire id 1 variable 1\ndeck close\ndeck tables plate.dat"},

    {"name internal", "name internal 'Plate (top)'"},
    {"name unique", "name unique display Table table 'Table-2'"},
    {"name check", "name check internal 'upper die'"},
    {"name number", "name number Part 3 Part-1"},

    {"paths", "paths"},
    {"paths show", "paths show mesh"},
    {"paths set", "paths set mesh .\npaths show mesh"},
    {"paths reset", "paths set mesh .\npaths reset mesh"},
    {"paths forget", "paths forget"},
    {"paths application", "paths application welding"},
    {"paths executables", "paths executables"},
    {"paths executable", "paths store mesh 2.1 gear.kdqsh\npaths executable mesh 2.1"},
    {"paths store", "paths store mesh 2.1 gear.kdqsh"},
    {"paths remove", "paths store mesh 2.1 gear.kdqsh\npaths remove mesh 2.1"},

    {"tcp serve", tcpServer},
    {"tcp connect", tcpClient},
    {"tcp send", tcpClient},
    {"tcp receive", tcpClient},
    {"tcp close", tcpClient},
    {"remote serve", "remote serve port 4711 clients 1"},
    {"remote connect", remoteClient},
    {"remote run", remoteClient},
    {"remote close", remoteClient},
    {"ipc listen", "ipc listen welding"},
    {"ipc greet", "ipc greet welding 4711 say 'Good day'"},
    {"time ask", "time ask server localhost port 4711"},

    {"lock take", "lock take . wait 5"},
    {"lock hold", "lock hold . 0.5"},
    {"lock show", "lock take .\nlock show ."},
    {"lock release", "lock take .\nlock release ."},
    {"lock break", "lock break ."},

    {"log path", "log path"},
    {"log echo", "log echo 4\nlog write 4 heard\nlog echo off"},
    {"log write", "log write 2 half of the decks are done"},
    {"log flush", "log flush"},
};

} // namespace

QStringList nShellExamples::of(const QString& command)
{
    for (const Example& example : examples)
        if (command == QLatin1String(example.command))
            return QString::fromLatin1(example.lines).split(QLatin1Char('\n'));
    return {};
}
