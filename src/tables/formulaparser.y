%require "3.6"
%define api.prefix {coexpr}
%define api.pure full
%define api.token.prefix {TOKEN_}
%define parse.error custom
%define parse.lac full
%lex-param {yyscan_t scanner}
%parse-param {yyscan_t scanner} {FormulaParse& parse}

%code requires {
#include "formulaparse.h"

using yyscan_t = void*;
}

%code {
// Deep nesting lives in this stack, on the heap; a text of so many open operators is refused cleanly.
#define YYMAXDEPTH 1000000

int coexprlex(COEXPRSTYPE* value, yyscan_t scanner);

static void coexprerror(yyscan_t, FormulaParse& parse, const char*)
{
    parse.tooDeep(); // only called when the stack is exhausted: syntax errors have their own report
}
}

%union {
    double number;
    quint32 reference; // of a name, a function or a node
}

%token END 0
%token <number> NUMBER
%token <reference> NAME QUOTED_NAME
%token IF "if" ELSE "else" AND "and" OR "or" NOT "not" BANG "!" INVALID
%token EQUAL "==" NOT_EQUAL "!=" LESS "<" LESS_EQUAL "<=" GREATER ">" GREATER_EQUAL ">="
%token PLUS "+" MINUS "-" TIMES "*" DIVIDE "/" POWER "^"
%token OPEN "(" CLOSE ")" QUESTION "?" COLON ":"
%type <reference> formula expr callee

// From the loosest to the tightest.
%right "else" "?" ":"
%left "or"
%left "and"
%precedence "not"
%nonassoc "==" "!=" "<" "<=" ">" ">="
%left "+" "-"
%left "*" "/"
%precedence SIGN "!"
%right "^"

%%

formula:
    expr
    ;

expr:
    NUMBER                              { $$ = parse.addNumber($1); }
    | NAME                              { $$ = parse.addVariable($1); }
    | callee expr ")"                   { $$ = parse.addCall($1, $2); }
    | callee QUOTED_NAME ")"            { $$ = parse.addCall($1, parse.addVariable($2)); }
    | "(" expr ")"                      { $$ = $2; }
    | "+" expr %prec SIGN               { $$ = $2; }
    | "-" expr %prec SIGN               { $$ = parse.add(FormulaKind::Negate, $2); }
    | "!" expr                          { $$ = parse.add(FormulaKind::Not, $2); }
    | "not" expr                        { $$ = parse.add(FormulaKind::Not, $2); }
    | expr "+" expr                     { $$ = parse.add(FormulaKind::Add, $1, $3); }
    | expr "-" expr                     { $$ = parse.add(FormulaKind::Subtract, $1, $3); }
    | expr "*" expr                     { $$ = parse.add(FormulaKind::Multiply, $1, $3); }
    | expr "/" expr                     { $$ = parse.add(FormulaKind::Divide, $1, $3); }
    | expr "^" expr                     { $$ = parse.add(FormulaKind::Power, $1, $3); }
    | expr "==" expr                    { $$ = parse.add(FormulaKind::Equal, $1, $3); }
    | expr "!=" expr                    { $$ = parse.add(FormulaKind::NotEqual, $1, $3); }
    | expr "<" expr                     { $$ = parse.add(FormulaKind::Less, $1, $3); }
    | expr "<=" expr                    { $$ = parse.add(FormulaKind::LessEqual, $1, $3); }
    | expr ">" expr                     { $$ = parse.add(FormulaKind::Greater, $1, $3); }
    | expr ">=" expr                    { $$ = parse.add(FormulaKind::GreaterEqual, $1, $3); }
    | expr "and" expr                   { $$ = parse.add(FormulaKind::And, $1, $3); }
    | expr "or" expr                    { $$ = parse.add(FormulaKind::Or, $1, $3); }
    | "if" "(" expr ")" expr "else" expr{ $$ = parse.add(FormulaKind::Conditional, $3, $5, $7); }
    | expr "?" expr ":" expr            { $$ = parse.add(FormulaKind::Conditional, $1, $3, $5); }
    ;

callee:
    NAME "("                            { $$ = parse.addFunction($1); }
    ;

%%

static FormulaToken meaning(yysymbol_kind_t symbol)
{
    switch (symbol) {
    case YYSYMBOL_YYEOF:
        return FormulaToken::End;
    case YYSYMBOL_NUMBER:
        return FormulaToken::Operand;
    case YYSYMBOL_POWER:
        return FormulaToken::Operator;
    case YYSYMBOL_EQUAL:
        return FormulaToken::Comparison;
    case YYSYMBOL_OPEN:
        return FormulaToken::Open;
    case YYSYMBOL_CLOSE:
        return FormulaToken::Close;
    case YYSYMBOL_ELSE:
        return FormulaToken::Else;
    case YYSYMBOL_COLON:
        return FormulaToken::Colon;
    default:
        return FormulaToken::Other;
    }
}

static int yyreport_syntax_error(const yypcontext_t* context, yyscan_t, FormulaParse& parse)
{
    yysymbol_kind_t symbols[YYNTOKENS];
    const int count = yypcontext_expected_tokens(context, symbols, YYNTOKENS);
    if (count < 0)
        return count;
    std::vector<FormulaToken> expected;
    for (int i = 0; i < count; ++i)
        expected.push_back(meaning(symbols[i]));
    parse.syntaxError(meaning(yypcontext_token(context)), expected);
    return 0;
}
