#pragma once
// The system's statement dialect, translated to SQLite in this one place.
//
// Every statement of the system carries its values as literals, so that no
// two texts of a loop are alike. The translator therefore works in two steps:
//  1. lex(): the text becomes tokens; literals that may become bound
//     parameters are marked, and the statement's shape (its text with those
//     literals replaced by a marker) is the cache key of the data store;
//  2. translate(): once per shape, the SQLite text with '?' in place of the
//     literals, and for each literal the kind of column it meets, so that
//     convert() reads it as the original engine did (day-first dates and
//     decimal commas for quoted text written to a date or number column).
// The constructs are listed in docs/dialect.md.
#include "core/datastore.h"
#include "core/schemacatalog.h"

#include <QString>
#include <QStringView>
#include <functional>
#include <optional>
#include <vector>

namespace jet {

enum class TokenType { Identifier, Number, Text, Date, Operator, End };

struct Token {
    TokenType type = TokenType::End;
    QStringView text;      // as written (for Text: without the quotes, escapes not undone)
    bool doubleQuoted = false;
    bool escaped = false;  // Text holding a doubled quote
    bool param = false;    // the literal becomes a bound parameter
};

struct Lexed {
    std::vector<Token> tokens;
    QString key;           // the statement's shape
    bool cacheable = false; // SELECT, INSERT, UPDATE, DELETE
};

// Splits the statement into tokens and builds its shape. Throws
// DatabaseError for an unterminated literal.
void lex(QStringView sql, Lexed &out);

// The value a literal token stands for: its text with the doubled quotes undone.
QString literalText(const Token &token);

// How a parameter is to be read: the kind of the column it meets, if any.
struct ParamTarget {
    std::optional<ColumnKind> kind;
};

// A file named by "IN '<file>'": attached under the alias for the statement.
struct Attachment {
    QString path;
    QString alias;
};

struct Translation {
    QString sql;                        // SQLite text with '?' for parameters
    std::vector<ParamTarget> params;    // one per parameter token, in order
    std::vector<Attachment> attachments;
    // INSERT INTO t SELECT * FROM t IN '<file>': the connection names the
    // columns (by name, as the original engine matched them).
    bool copyAll = false;
    QString copyTable, copySourceAlias, copySourceTable, copyRest;
    bool changesSchema = false;         // CREATE, ALTER, DROP
};

// Columns of a table in their order, or nullptr for an unknown table.
using ColumnLookup = std::function<const std::vector<ColumnDef> *(const QString &table)>;

Translation translate(const Lexed &lexed, const ColumnLookup &columns);

// A literal converted for binding.
struct BoundValue {
    enum Type { Null, Integer, Real, Text } type = Null;
    qint64 i = 0;
    double d = 0;
    QString text;  // Text: converted text; empty when the token's own text is used
    char iso[10] = {};  // Text of a date read for a date column, "yyyy-mm-dd", when isoDate
    bool isoDate = false;
};

// Converts a parameter token for its target. Quoted text written to or
// compared with a date, number, money or boolean column is read as the
// original engine read it; anything it could not read is a DatabaseError
// ("Tipo de dados incompatível na expressão de critério.").
BoundValue convert(const Token &token, const ParamTarget &target, QStringView statement);

// ---- Readings shared with the data store's SQL functions --------------------
// "#mm/dd/yyyy#", "#mm/yyyy#" (first of the month), ISO; a first number above
// 12 is read day-first.
QDate readDateLiteral(QStringView text);
// Quoted text for a date column: day-first "dd/mm/yyyy", "dd/mm/yy", "mm/yyyy"
// (first of the month) or ISO; a day-first reading that is no date is tried
// month-first. Invalid QDate when none fits.
QDate readDateText(QStringView text);
// Quoted text for a number column: decimal comma or point; when both occur,
// the last one is the decimal separator. Empty optional when it is no number.
std::optional<double> readNumberText(QStringView text);
// ROUND of the original engine: half to even at the given places.
double roundHalfEven(double value, int places);

} // namespace jet
