#pragma once
// val(): the original reading of text as a number, used by the dialect's val()
// in SQL and by every form that reads a number from text.
//  - blanks, tabs and line feeds anywhere are ignored;
//  - reading stops at the first character that cannot continue a number;
//  - only the point is a decimal separator (a comma stops the reading);
//  - an optional sign, digits, a fraction and an exponent (E or D) are read;
//  - "&H" and "&O" prefixes read hexadecimal and octal;
//  - the empty text, or text with no number at its start, is 0.
// It never depends on the C locale.
#include <QString>
#include <string_view>

double val(QStringView text);
double val(std::string_view text);
