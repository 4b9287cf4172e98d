// The formulas of skin and model files. Tools/generate_formula makes the recognisers in Generated of it.
//
// FormulaVocab.tokens pins the numbers of the tokens. It leaves the brackets and the comma out: the generator
// writes no lexer rule for a literal that stands there, and they follow as 31, 32 and 33 by themselves.
grammar Formula;

options
{
    language = C;
    output = AST;
    ASTLabelType = pANTLR3_BASE_TREE;
    tokenVocab = FormulaVocab;
}

tokens
{
    PARAM;
    NEGATE;
}

// The loops make all operators group from the left, the power too.

expression
    : logicalExpression EOF!
    ;

logicalExpression
    : booleanAndExpression ( OR^ booleanAndExpression )*
    ;

booleanAndExpression
    : equalityExpression ( AND^ equalityExpression )*
    ;

equalityExpression
    : relationalExpression ( ( EQUALS^ | NOTEQUALS^ ) relationalExpression )*
    ;

relationalExpression
    : additiveExpression ( ( LTH^ | LTEQ^ | GT^ | GTEQ^ ) additiveExpression )*
    ;

additiveExpression
    : multiplicativeExpression ( ( PLUS^ | MINUS^ ) multiplicativeExpression )*
    ;

multiplicativeExpression
    : powerExpression ( ( MULT^ | DIV^ | MOD^ ) powerExpression )*
    ;

powerExpression
    : unaryExpression ( POW^ unaryExpression )*
    ;

unaryExpression
    : primaryExpression
    | NOT^ primaryExpression
    | MINUS primaryExpression -> ^( NEGATE primaryExpression )
    ;

primaryExpression
    : '('! logicalExpression ')'!
    | value
    ;

value
    : STRING
    | INTEGER
    | FLOAT
    | DATETIME
    | BOOLEAN
    | function
    | parameter
    ;

parameter
    : IDENT -> ^( PARAM IDENT )
    ;

function
    : IDENT '(' ( logicalExpression ( ',' logicalExpression )* )? ')' -> ^( IDENT logicalExpression* )
    ;

STRING
    : '\'' ( EscapeSequence | '\u0020'..'\u0026' | '\u0028'..'\u005B' | '\u005D'..'\uFFFF' )* '\''
    ;

OR : '||' | 'or' ;
AND : '&&' | 'and' ;
EQUALS : '=' | '==' ;
NOTEQUALS : '!=' | '<>' ;
LTH : '<' ;
LTEQ : '<=' ;
GT : '>' ;
GTEQ : '>=' ;
PLUS : '+' ;
MINUS : '-' ;
MULT : '*' ;
DIV : '/' ;
MOD : '%' ;
POW : '^' ;
NOT : '!' | 'not' ;

INTEGER : '0'..'9'+ ;
FLOAT : '0'..'9'* '.' '0'..'9'+ ;
DATETIME : '#' ( '\u0000'..'\u0022' | '\u0024'..'\uFFFF' )* '#' ;
BOOLEAN : 'true' | 'false' ;

IDENT
    : ( 'a'..'z' | 'A'..'Z' | '_' | '$' ) ( 'a'..'z' | 'A'..'Z' | '0'..'9' | '_' | '$' | '.' )*
    ;

fragment EscapeSequence
    : '\\' ( 'n' | 'r' | 't' | '\'' | '\\' | 'u' HexDigit HexDigit HexDigit HexDigit )
    ;

fragment UnicodeEscape
    : '\\' 'u' HexDigit HexDigit HexDigit HexDigit
    ;

fragment HexDigit
    : '0'..'9' | 'A'..'F' | 'a'..'f'
    ;

WS
    : ( '\t' | '\n' | '\f' | '\r' | ' ' ) { $channel = HIDDEN; }
    ;
