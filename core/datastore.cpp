// The data store on SQLite. Statements are lexed, their shape looked up in a
// per-connection cache of translated, prepared statements, and their literals
// bound as parameters; so a loop of statements that differ only in values
// parses and plans once. Results are read whole when the statement runs:
// a recordset is a snapshot that the statements after it cannot disturb.
#include "core/datastore.h"

#include "core/conversions.h"
#include "core/dbfiles.h"
#include "core/jetdialect.h"
#include "core/schemacatalog.h"
#include "core/transaction.h"
#include "core/val.h"

#include <QFile>
#include <QFileInfo>
#include <utility>
#include <QHash>
#include <algorithm>
#include <cmath>
#include <sqlite3.h>
#include <string>

// ---- Errors ------------------------------------------------------------------

namespace {

const QString kNoCurrentRecord = QStringLiteral(
    "O BOF ou o EOF é True, ou o registro atual foi excluído. A operação solicitada requer um registro atual.");
const QString kClosed = QStringLiteral("A operação não é permitida quando o objeto está fechado.");

QString engineMessage(sqlite3 *db) { return QString::fromUtf8(sqlite3_errmsg(db)); }

bool isIsoDate(QStringView t)
{
    if (t.size() != 10 || t[4] != u'-' || t[7] != u'-')
        return false;
    for (int i : {0, 1, 2, 3, 5, 6, 8, 9})
        if (t[i] < u'0' || t[i] > u'9')
            return false;
    return true;
}

// Writes text as UTF-8 at w, which has room for three bytes a character, and
// gives the end; a lone surrogate becomes U+FFFD, as Qt writes it.
char *writeUtf8(char *w, QStringView text)
{
    const char16_t *p = text.utf16();
    const char16_t *const end = p + text.size();
    while (p < end) {
        char32_t c = *p++;
        if (c < 0x80) {
            *w++ = char(c);
            continue;
        }
        if (c >= 0xD800 && c <= 0xDBFF && p < end && QChar::isLowSurrogate(*p)) {
            c = QChar::surrogateToUcs4(char16_t(c), *p++);
        } else if (c >= 0xD800 && c <= 0xDFFF) {
            c = 0xFFFD;
        }
        if (c < 0x800) {
            *w++ = char(0xC0 | (c >> 6));
        } else if (c < 0x10000) {
            *w++ = char(0xE0 | (c >> 12));
            *w++ = char(0x80 | ((c >> 6) & 0x3F));
        } else {
            *w++ = char(0xF0 | (c >> 18));
            *w++ = char(0x80 | ((c >> 12) & 0x3F));
            *w++ = char(0x80 | ((c >> 6) & 0x3F));
        }
        *w++ = char(0x80 | (c & 0x3F));
    }
    return w;
}

} // namespace

// ---- Field -------------------------------------------------------------------

QString Field::text() const
{
    if (value_.isNull())
        return QString();
    switch (value_.typeId()) {
    case QMetaType::QString:
        return value_.toString();
    case QMetaType::QDate: {
        // "dd/mm/yyyy" written digit by digit: a trip through the calendar's
        // formatter costs more than the rest of a row.
        int y = 0, m = 0, d = 0;
        value_.toDate().getDate(&y, &m, &d);
        if (y < 1000 || y > 9999)
            return value_.toDate().toString(QStringLiteral("dd/MM/yyyy"));
        const char16_t s[10] = {char16_t(u'0' + d / 10),      char16_t(u'0' + d % 10),       u'/',
                                char16_t(u'0' + m / 10),      char16_t(u'0' + m % 10),       u'/',
                                char16_t(u'0' + y / 1000),    char16_t(u'0' + y / 100 % 10), char16_t(u'0' + y / 10 % 10),
                                char16_t(u'0' + y % 10)};
        return QString(reinterpret_cast<const QChar *>(s), 10);
    }
    case QMetaType::Bool:
        return value_.toBool() ? QStringLiteral("Verdadeiro") : QStringLiteral("Falso");
    case QMetaType::LongLong:
        return QString::number(value_.toLongLong());
    case QMetaType::Double:
        if (kind_ == ColumnKind::Money)
            return moneyText(Money::fromDouble(value_.toDouble()));
        return doubleText(value_.toDouble());
    default:
        return value_.toString();
    }
}

double Field::toDouble() const
{
    if (value_.isNull())
        return 0;
    switch (value_.typeId()) {
    case QMetaType::Double:
        return value_.toDouble();
    case QMetaType::LongLong:
        return double(value_.toLongLong());
    case QMetaType::Bool:
        return value_.toBool() ? -1 : 0;  // True is -1, as in the original
    case QMetaType::QDate:
        return dateToDays(value_.toDate());
    default:
        // Text read as the screen writes numbers: decimal comma or point.
        return jet::readNumberText(value_.toString()).value_or(0);
    }
}

Money Field::toMoney() const { return Money::fromDouble(toDouble()); }

qint64 Field::toInt() const
{
    if (value_.typeId() == QMetaType::LongLong)
        return value_.toLongLong();
    return qint64(std::nearbyint(toDouble()));  // half to even, as the original conversion
}

bool Field::toBool() const
{
    if (value_.isNull())
        return false;
    if (value_.typeId() == QMetaType::QString) {
        const QString t = value_.toString().trimmed().toLower();
        if (t == u"true" || t == u"verdadeiro" || t == u"sim")
            return true;
        if (t == u"false" || t == u"falso" || t.isEmpty())
            return false;
    }
    return toDouble() != 0;
}

QDate Field::toDate() const
{
    if (value_.isNull())
        return {};
    if (value_.typeId() == QMetaType::QDate)
        return value_.toDate();
    if (value_.typeId() == QMetaType::QString)
        return jet::readDateText(value_.toString());
    return {};
}

// ---- Prepared statements and result columns -----------------------------------

namespace {

struct ColumnSet {
    QStringList names;
    QStringList origins;  // "table.column" of a plain column, empty for an expression
    std::vector<std::optional<ColumnKind>> kinds;
    // Where a name asked for was found, by the address of the asker's text:
    // a loop asks with the same literal each time. The text is kept here, so
    // that its memory cannot be freed and come back holding another name.
    mutable QHash<const void *, std::pair<QString, qsizetype>> asked;
};

struct Prepared {
    sqlite3_stmt *stmt = nullptr;
    std::vector<jet::ParamTarget> params;
    std::shared_ptr<const ColumnSet> columns;
    ~Prepared() { sqlite3_finalize(stmt); }
};

std::shared_ptr<const ColumnSet> describe(sqlite3_stmt *st)
{
    auto cols = std::make_shared<ColumnSet>();
    const int n = sqlite3_column_count(st);
    for (int c = 0; c < n; ++c) {
        cols->names << QString::fromUtf8(sqlite3_column_name(st, c));
        const char *table = sqlite3_column_table_name(st, c);
        const char *origin = sqlite3_column_origin_name(st, c);
        cols->origins << (table && origin ? QString::fromUtf8(table) + u'.' + QString::fromUtf8(origin) : QString());
        bool known = false;
        const ColumnKind k = SchemaCatalog::kindOfDeclaredType(sqlite3_column_decltype(st, c), &known);
        cols->kinds.push_back(known ? std::optional<ColumnKind>(k) : std::nullopt);
    }
    return cols;
}

// A value of a row as it left SQLite: what a Field is made of when the form
// asks for it. A result is kept this way, so that the columns nobody reads
// (a SELECT * of a wide table) cost a copy of their bytes only.
struct Cell {
    enum Form : unsigned char { Null, Int, Real, Bytes } form = Null;
    qint64 i = 0;
    double d = 0;
    size_t at = 0, size = 0;  // Bytes: the UTF-8 in the recordset's store
};

// Takes what the column's kind needs from the current row: the text of a text
// or date column whatever SQLite holds, the number of a number column.
Cell capture(sqlite3_stmt *st, int c, std::optional<ColumnKind> declared, std::string &store)
{
    Cell cell;
    const int type = sqlite3_column_type(st, c);
    if (type == SQLITE_NULL)
        return cell;
    auto bytes = [&] {
        const auto *p = reinterpret_cast<const char *>(sqlite3_column_text(st, c));
        cell.form = Cell::Bytes;
        cell.at = store.size();
        cell.size = p ? size_t(sqlite3_column_bytes(st, c)) : 0;
        store.append(p ? p : "", cell.size);
        return cell;
    };
    auto integer = [&] {
        cell.form = Cell::Int;
        cell.i = sqlite3_column_int64(st, c);
        return cell;
    };
    auto real = [&] {
        cell.form = Cell::Real;
        cell.d = sqlite3_column_double(st, c);
        return cell;
    };
    if (!declared)
        return type == SQLITE_INTEGER ? integer() : type == SQLITE_FLOAT ? real() : bytes();
    switch (*declared) {
    case ColumnKind::Text:
    case ColumnKind::Date:
        return bytes();
    case ColumnKind::Counter:
        return integer();
    case ColumnKind::Boolean:
    case ColumnKind::Money:
        return type == SQLITE_TEXT ? bytes() : real();
    case ColumnKind::Number:
        return type == SQLITE_INTEGER ? integer() : type == SQLITE_FLOAT ? real() : bytes();
    }
    return bytes();
}

// A stored date "yyyy-mm-dd" read straight from its bytes; invalid for
// anything else, which the caller then reads as text.
QDate storedDate(const char *p, size_t size)
{
    if (size != 10 || p[4] != '-' || p[7] != '-')
        return {};
    int v[3] = {0, 0, 0};
    const int from[3] = {0, 5, 8}, to[3] = {4, 7, 10};
    for (int k = 0; k < 3; ++k)
        for (int i = from[k]; i < to[k]; ++i) {
            if (p[i] < '0' || p[i] > '9')
                return {};
            v[k] = v[k] * 10 + (p[i] - '0');
        }
    return QDate(v[0], v[1], v[2]);
}

Field makeField(const Cell &cell, const std::string &store, std::optional<ColumnKind> declared)
{
    if (cell.form == Cell::Null)
        return Field(QVariant(), declared.value_or(ColumnKind::Text));
    const char *p = store.data() + cell.at;
    auto text = [&] { return QString::fromUtf8(p, qsizetype(cell.size)); };
    if (!declared) {
        // An expression: its kind follows its value.
        switch (cell.form) {
        case Cell::Int:
            return Field(QVariant(cell.i), ColumnKind::Number);
        case Cell::Real:
            return Field(QVariant(cell.d), ColumnKind::Number);
        default: {
            const QDate d = storedDate(p, cell.size);
            if (d.isValid())
                return Field(QVariant(d), ColumnKind::Date);
            const QString t = text();
            if (isIsoDate(t))
                return Field(QVariant(QDate::fromString(t, Qt::ISODate)), ColumnKind::Date);
            return Field(QVariant(t), ColumnKind::Text);
        }
        }
    }
    const ColumnKind kind = *declared;
    switch (kind) {
    case ColumnKind::Text:
        return Field(QVariant(text()), kind);
    case ColumnKind::Counter:
        return Field(QVariant(cell.i), kind);
    case ColumnKind::Boolean:
        if (cell.form == Cell::Bytes)
            break;
        return Field(QVariant(cell.d != 0), kind);
    case ColumnKind::Money:
        if (cell.form == Cell::Bytes)
            break;
        return Field(QVariant(Money::fromDouble(cell.d).toDouble()), kind);
    case ColumnKind::Number:
        if (cell.form == Cell::Int)
            return Field(QVariant(cell.i), kind);
        if (cell.form == Cell::Real)
            return Field(QVariant(cell.d), kind);
        break;
    case ColumnKind::Date: {
        if (const QDate stored = storedDate(p, cell.size); stored.isValid())
            return Field(QVariant(stored), kind);
        const QString t = text();
        const QDate d = QDate::fromString(t, Qt::ISODate);
        if (d.isValid())
            return Field(QVariant(d), kind);
        return Field(QVariant(t), kind);
    }
    }
    // A value the column's kind does not hold (text left in a number column).
    return Field(QVariant(text()), kind);
}

// ---- SQL functions of the dialect ---------------------------------------------

QString argText(sqlite3_value *v)
{
    const auto *p = reinterpret_cast<const char *>(sqlite3_value_text(v));
    return p ? QString::fromUtf8(p, sqlite3_value_bytes(v)) : QString();
}

void resultText(sqlite3_context *ctx, const QString &s)
{
    sqlite3_result_text16(ctx, s.utf16(), int(s.size() * 2), SQLITE_TRANSIENT);
}

bool anyNull(int argc, sqlite3_value **argv)
{
    for (int i = 0; i < argc; ++i)
        if (sqlite3_value_type(argv[i]) == SQLITE_NULL)
            return true;
    return false;
}

void fnVal(sqlite3_context *ctx, int, sqlite3_value **argv)
{
    switch (sqlite3_value_type(argv[0])) {
    case SQLITE_NULL:
        sqlite3_result_null(ctx);
        return;
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
        sqlite3_result_double(ctx, sqlite3_value_double(argv[0]));
        return;
    default: {
        const auto *p = reinterpret_cast<const char *>(sqlite3_value_text(argv[0]));
        sqlite3_result_double(ctx, val(std::string_view(p, size_t(sqlite3_value_bytes(argv[0])))));
    }
    }
}

void fnLeft(sqlite3_context *ctx, int argc, sqlite3_value **argv)
{
    if (anyNull(argc, argv))
        return sqlite3_result_null(ctx);
    resultText(ctx, argText(argv[0]).left(std::max(0, sqlite3_value_int(argv[1]))));
}

void fnRight(sqlite3_context *ctx, int argc, sqlite3_value **argv)
{
    if (anyNull(argc, argv))
        return sqlite3_result_null(ctx);
    resultText(ctx, argText(argv[0]).right(std::max(0, sqlite3_value_int(argv[1]))));
}

void fnMid(sqlite3_context *ctx, int argc, sqlite3_value **argv)
{
    if (anyNull(argc, argv))
        return sqlite3_result_null(ctx);
    const QString s = argText(argv[0]);
    const int start = std::max(1, sqlite3_value_int(argv[1])) - 1;
    resultText(ctx, argc > 2 ? s.mid(start, std::max(0, sqlite3_value_int(argv[2]))) : s.mid(start));
}

void fnRound(sqlite3_context *ctx, int argc, sqlite3_value **argv)
{
    if (anyNull(argc, argv))
        return sqlite3_result_null(ctx);
    double v;
    if (sqlite3_value_type(argv[0]) == SQLITE_TEXT) {
        // Quoted text ('12,5' or '12.5') is read as the original engine read it.
        const std::optional<double> d = jet::readNumberText(argText(argv[0]));
        if (!d)
            return sqlite3_result_error(ctx, "Tipo de dados incompatível na expressão de critério.", -1);
        v = *d;
    } else {
        v = sqlite3_value_double(argv[0]);
    }
    const int places = argc > 1 ? sqlite3_value_int(argv[1]) : 0;
    sqlite3_result_double(ctx, jet::roundHalfEven(v, places));
}

void fnIsNull(sqlite3_context *ctx, int, sqlite3_value **argv)
{
    sqlite3_result_int(ctx, sqlite3_value_type(argv[0]) == SQLITE_NULL ? 1 : 0);
}

void fnLen(sqlite3_context *ctx, int argc, sqlite3_value **argv)
{
    if (anyNull(argc, argv))
        return sqlite3_result_null(ctx);
    sqlite3_result_int(ctx, int(argText(argv[0]).size()));
}

void fnUcase(sqlite3_context *ctx, int argc, sqlite3_value **argv)
{
    if (anyNull(argc, argv))
        return sqlite3_result_null(ctx);
    resultText(ctx, argText(argv[0]).toUpper());
}

void fnLcase(sqlite3_context *ctx, int argc, sqlite3_value **argv)
{
    if (anyNull(argc, argv))
        return sqlite3_result_null(ctx);
    resultText(ctx, argText(argv[0]).toLower());
}

template <int Part>
void fnDatePart(sqlite3_context *ctx, int argc, sqlite3_value **argv)
{
    if (anyNull(argc, argv))
        return sqlite3_result_null(ctx);
    const QDate d = QDate::fromString(argText(argv[0]).left(10), Qt::ISODate);
    if (!d.isValid())
        return sqlite3_result_error(ctx, "Tipo de dados incompatível na expressão de critério.", -1);
    sqlite3_result_int(ctx, Part == 0 ? d.year() : Part == 1 ? d.month() : d.day());
}

void fnInt(sqlite3_context *ctx, int argc, sqlite3_value **argv)
{
    if (anyNull(argc, argv))
        return sqlite3_result_null(ctx);
    sqlite3_result_double(ctx, std::floor(sqlite3_value_double(argv[0])));
}

// Text columns compare as the original engine compared them: without regard
// to case, accented letters too ("JOÃO" is "joão"), and in sorting an
// accented letter stands with its plain letter ("Álvaro" before "Bruno").
// Text that differs only in accents is not equal; "Joao" sorts before "João".
// Pure ASCII text compares exactly as SQLite's own NOCASE, so indexes made
// before this collation stay in order.
QString sortKey(const QString &text, bool keepAccents)
{
    QString key;
    key.reserve(text.size());
    for (QChar c : text) {
        if (!keepAccents && c.decompositionTag() == QChar::Canonical)
            c = c.decomposition().at(0);
        key += c.toLower();
    }
    return key;
}

int jetNocase(void *, int n1, const void *p1, int n2, const void *p2)
{
    const auto *a = static_cast<const unsigned char *>(p1);
    const auto *b = static_cast<const unsigned char *>(p2);
    // ASCII up to the first difference decides alone: an accented letter
    // after it cannot change the order.
    const int n = std::min(n1, n2);
    int i = 0;
    for (; i < n; ++i) {
        if ((a[i] | b[i]) & 0x80)
            break;
        const int ca = (a[i] >= 'A' && a[i] <= 'Z') ? a[i] + 32 : a[i];
        const int cb = (b[i] >= 'A' && b[i] <= 'Z') ? b[i] + 32 : b[i];
        if (ca != cb)
            return ca - cb;
    }
    if (i == n)
        return n1 - n2;
    const QString ta = QString::fromUtf8(reinterpret_cast<const char *>(a), n1);
    const QString tb = QString::fromUtf8(reinterpret_cast<const char *>(b), n2);
    if (const int c = sortKey(ta, false).compare(sortKey(tb, false)))
        return c;
    return sortKey(ta, true).compare(sortKey(tb, true));
}

// A value written to a money column: rounded to four places as the currency
// type holds it; beyond its range the statement fails and writes nothing.
void fnMoney(sqlite3_context *ctx, int, sqlite3_value **argv)
{
    const int type = sqlite3_value_type(argv[0]);
    if (type != SQLITE_INTEGER && type != SQLITE_FLOAT) {
        sqlite3_result_value(ctx, argv[0]);
        return;
    }
    try {
        sqlite3_result_double(ctx, Money::fromDouble(sqlite3_value_double(argv[0])).toDouble());
    } catch (const std::overflow_error &) {
        sqlite3_result_error(ctx, "Estouro de capacidade", -1);
    }
}

void registerFunctions(sqlite3 *db)
{
    sqlite3_create_collation_v2(db, "NOCASE", SQLITE_UTF8, nullptr, jetNocase, nullptr);
    struct Fn {
        const char *name;
        int args;
        void (*fn)(sqlite3_context *, int, sqlite3_value **);
    };
    static const Fn fns[] = {{"val", 1, fnVal},         {"jet_left", 2, fnLeft},      {"jet_right", 2, fnRight},
                             {"jet_round", 1, fnRound}, {"jet_round", 2, fnRound},    {"jet_isnull", 1, fnIsNull},
                             {"mid", 2, fnMid},         {"mid", 3, fnMid},            {"len", 1, fnLen},
                             {"ucase", 1, fnUcase},     {"lcase", 1, fnLcase},        {"year", 1, fnDatePart<0>},
                             {"month", 1, fnDatePart<1>}, {"day", 1, fnDatePart<2>}, {"int", 1, fnInt},
                             {"jet_money", 1, fnMoney}};
    for (const Fn &f : fns)
        sqlite3_create_function_v2(db, f.name, f.args, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, f.fn, nullptr,
                                   nullptr, nullptr);
}

} // namespace

// ---- Connection --------------------------------------------------------------

struct Connection::Impl {
    sqlite3 *db = nullptr;
    QString path;
    QString inUseKey;  // the file as the registry of open files knows it
    QHash<QString, std::shared_ptr<Prepared>> cache;
    QHash<QString, std::vector<ColumnDef>> tableColumns;  // by lower-case name; empty: no such table
    jet::Lexed lexed;
    // The statements of Transaction, prepared on first use.
    enum Step { Begin, Commit, Rollback, Savepoint, Release, RollbackTo, StepCount };
    sqlite3_stmt *steps[StepCount] = {};

    static constexpr int kCacheLimit = 400;

    // Runs one of the step statements; false with the engine's message kept.
    bool stepStatement(Step step)
    {
        static const char *const texts[StepCount] = {"BEGIN IMMEDIATE",     "COMMIT",
                                                     "ROLLBACK",            "SAVEPOINT hab_passo",
                                                     "RELEASE hab_passo",   "ROLLBACK TO hab_passo"};
        sqlite3_stmt *&st = steps[step];
        if (!st && sqlite3_prepare_v3(db, texts[step], -1, SQLITE_PREPARE_PERSISTENT, &st, nullptr) != SQLITE_OK)
            return false;
        const int rc = sqlite3_step(st);
        sqlite3_reset(st);
        return rc == SQLITE_DONE;
    }

    void finalizeSteps()
    {
        for (sqlite3_stmt *&st : steps) {
            sqlite3_finalize(st);
            st = nullptr;
        }
    }

    const std::vector<ColumnDef> *columnsOf(const QString &table)
    {
        const QString key = table.toLower();
        auto it = tableColumns.find(key);
        if (it == tableColumns.end()) {
            std::vector<ColumnDef> cols;
            sqlite3_stmt *st = nullptr;
            if (sqlite3_prepare_v2(db, "SELECT name, type FROM pragma_table_info(?1)", -1, &st, nullptr) == SQLITE_OK) {
                const QByteArray name = table.toUtf8();
                sqlite3_bind_text(st, 1, name.constData(), int(name.size()), SQLITE_TRANSIENT);
                while (sqlite3_step(st) == SQLITE_ROW)
                    cols.push_back({QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st, 0))),
                                    SchemaCatalog::kindOfDeclaredType(
                                        reinterpret_cast<const char *>(sqlite3_column_text(st, 1))),
                                    QString()});
            }
            sqlite3_finalize(st);
            it = tableColumns.insert(key, std::move(cols));
        }
        return it->empty() ? nullptr : &*it;
    }

    void forgetSchema()
    {
        cache.clear();
        tableColumns.clear();
    }

    [[noreturn]] void fail(const QString &statement) { throw DatabaseError(engineMessage(db), statement); }

    std::shared_ptr<Prepared> prepare(const QString &sqliteText, const QString &statement)
    {
        auto p = std::make_shared<Prepared>();
        if (sqlite3_prepare16_v3(db, sqliteText.utf16(), int(sqliteText.size() * 2), SQLITE_PREPARE_PERSISTENT,
                                 &p->stmt, nullptr) != SQLITE_OK)
            fail(statement);
        if (!p->stmt)  // only a comment or blanks
            throw DatabaseError(QStringLiteral("Instrução SQL inválida."), statement);
        p->columns = describe(p->stmt);
        return p;
    }

    // The UTF-8 of the bound texts of one statement, kept from one statement
    // to the next; sized before binding, so that nothing in it moves.
    std::unique_ptr<char[]> bound;
    size_t boundSize = 0;

    void bind(Prepared &p, const QString &statement)
    {
        size_t room = 0;
        for (const jet::Token &tok : lexed.tokens)
            if (tok.param)
                room += size_t(tok.text.size()) * 3 + 32;
        if (room > boundSize) {
            boundSize = std::max(room, boundSize * 2);
            bound = std::make_unique<char[]>(boundSize);
        }
        char *used = bound.get();
        // Text goes to SQLite as UTF-8, the file's own encoding, and stays
        // in `bound` until the bindings are cleared after the run.
        auto bindText = [&](int index, QStringView text) {
            if (used + size_t(text.size()) * 3 > bound.get() + boundSize) {  // never, by the room above
                const QByteArray copy = text.toUtf8();
                return sqlite3_bind_text(p.stmt, index, copy.constData(), int(copy.size()), SQLITE_TRANSIENT);
            }
            char *const start = used;
            used = writeUtf8(used, text);
            return sqlite3_bind_text(p.stmt, index, start, int(used - start), SQLITE_STATIC);
        };
        int index = 0;
        for (const jet::Token &tok : lexed.tokens) {
            if (!tok.param)
                continue;
            const jet::BoundValue v = jet::convert(tok, p.params[size_t(index)], statement);
            ++index;
            int rc = SQLITE_OK;
            switch (v.type) {
            case jet::BoundValue::Null:
                rc = sqlite3_bind_null(p.stmt, index);
                break;
            case jet::BoundValue::Integer:
                rc = sqlite3_bind_int64(p.stmt, index, v.i);
                break;
            case jet::BoundValue::Real:
                rc = sqlite3_bind_double(p.stmt, index, v.d);
                break;
            case jet::BoundValue::Text:
                if (v.isoDate) {
                    char *const start = used;
                    used = std::copy(v.iso, v.iso + sizeof v.iso, used);
                    rc = sqlite3_bind_text(p.stmt, index, start, int(sizeof v.iso), SQLITE_STATIC);
                } else if (!v.text.isNull())
                    rc = bindText(index, v.text);
                else if (tok.text.isEmpty())
                    rc = sqlite3_bind_text(p.stmt, index, "", 0, SQLITE_STATIC);
                else
                    rc = bindText(index, tok.text);
                break;
            }
            if (rc != SQLITE_OK)
                fail(statement);
        }
    }

    // Runs a bound statement; rows go into rs when it returns any.
    void run(Prepared &p, const QString &statement, Recordset::Impl *rs, long *affected);

    void exec(const char *sql)
    {
        char *err = nullptr;
        if (sqlite3_exec(db, sql, nullptr, nullptr, &err) != SQLITE_OK) {
            const QString message = QString::fromUtf8(err ? err : "");
            sqlite3_free(err);
            throw DatabaseError(message, QString::fromUtf8(sql));
        }
    }

    void execute(const QString &sql, Recordset::Impl *rs, long *affected);
    void executeUncached(const jet::Translation &tr, const QString &sql, Recordset::Impl *rs, long *affected);
};

struct Recordset::Impl {
    std::shared_ptr<const ColumnSet> columns;
    std::vector<Cell> cells;
    std::string store;                // the bytes of the text cells
    // The current row's fields, made when first asked for. Like the original's
    // Field objects, one stands for its column and shows the current row.
    mutable std::vector<Field> fields;
    mutable std::vector<size_t> madeFor;  // row + 1 each field was made for; 0: none
    size_t rows = 0;
    size_t current = 0;
    bool open = false;
    bool keyset = false;

    size_t width() const { return size_t(columns ? columns->names.size() : 0); }

    void clear()
    {
        cells.clear();
        store.clear();
        std::fill(madeFor.begin(), madeFor.end(), 0);
        rows = 0;
        current = 0;
    }

    const Field &field(size_t column) const
    {
        const size_t n = width();
        if (fields.size() != n) {
            fields.assign(n, Field());
            madeFor.assign(n, 0);
        }
        if (madeFor[column] != current + 1) {
            fields[column] = makeField(cells[current * n + column], store, columns->kinds[column]);
            madeFor[column] = current + 1;
        }
        return fields[column];
    }
};

void Connection::Impl::run(Prepared &p, const QString &statement, Recordset::Impl *rs, long *affected)
{
    sqlite3_stmt *st = p.stmt;
    const int ncols = sqlite3_column_count(st);
    if (ncols > 0 && rs) {
        rs->columns = p.columns;
        rs->clear();
        const auto &kinds = p.columns->kinds;
        rs->cells.reserve(size_t(ncols));
        int rc;
        while ((rc = sqlite3_step(st)) == SQLITE_ROW) {
            for (int c = 0; c < ncols; ++c)
                rs->cells.push_back(capture(st, c, kinds[size_t(c)], rs->store));
            ++rs->rows;
        }
        if (rc != SQLITE_DONE) {
            const QString message = engineMessage(db);
            sqlite3_reset(st);
            sqlite3_clear_bindings(st);
            throw DatabaseError(message, statement);
        }
        rs->open = true;
    } else {
        int rc;
        while ((rc = sqlite3_step(st)) == SQLITE_ROW) {
        }
        if (rc != SQLITE_DONE) {
            const QString message = engineMessage(db);
            sqlite3_reset(st);
            sqlite3_clear_bindings(st);
            throw DatabaseError(message, statement);
        }
        if (affected)
            *affected = ncols > 0 ? 0 : long(sqlite3_changes(db));
    }
    sqlite3_reset(st);
}

namespace {
// The files that connections of this program hold open, by canonical path,
// with the number of connections on each.
QHash<QString, int> &openFiles()
{
    static QHash<QString, int> files;
    return files;
}

QString inUseKeyOf(const QString &path)
{
    const QFileInfo info(path);
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? info.absoluteFilePath() : canonical;
}

StatementListener &statementListener()
{
    static StatementListener listener;
    return listener;
}
}

StatementListener setStatementListener(StatementListener listener)
{
    return std::exchange(statementListener(), std::move(listener));
}

void Connection::Impl::execute(const QString &sql, Recordset::Impl *rs, long *affected)
{
    if (statementListener())
        statementListener()(sql);
    if (affected)
        *affected = 0;
    jet::lex(sql, lexed);
    if (lexed.tokens.empty())
        throw DatabaseError(QStringLiteral("Instrução SQL inválida."), sql);
    if (lexed.cacheable) {
        auto it = cache.constFind(lexed.key);
        // Nothing below touches the cache before the statement has run.
        Prepared *p = nullptr;
        if (it != cache.constEnd()) {
            p = it->get();
        } else {
            const jet::Translation tr =
                jet::translate(lexed, [this](const QString &t) { return columnsOf(t); });
            if (!tr.attachments.empty())
                return executeUncached(tr, sql, rs, affected);
            std::shared_ptr<Prepared> made = prepare(tr.sql, sql);
            made->params = tr.params;
            if (cache.size() >= kCacheLimit)
                cache.clear();
            cache.insert(lexed.key, made);
            p = made.get();
        }
        bind(*p, sql);
        run(*p, sql, rs, affected);
        return;
    }
    const jet::Translation tr = jet::translate(lexed, [this](const QString &t) { return columnsOf(t); });
    executeUncached(tr, sql, rs, affected);
}

void Connection::Impl::executeUncached(const jet::Translation &tr, const QString &sql, Recordset::Impl *rs,
                                       long *affected)
{
    QString text = tr.sql;
    // Files named by IN '<file>' are attached for this statement only. A
    // missing file is an error: attaching would create it.
    std::vector<QString> attached;
    auto detachAll = [&] {
        for (const QString &alias : attached) {
            const QByteArray s = QStringLiteral("DETACH DATABASE %1").arg(alias).toUtf8();
            sqlite3_exec(db, s.constData(), nullptr, nullptr, nullptr);
        }
    };
    try {
        for (const jet::Attachment &a : tr.attachments) {
            if (!QFileInfo(a.path).isFile())
                throw DatabaseError(QStringLiteral("Não foi possível encontrar o arquivo '%1'.").arg(a.path), sql);
            sqlite3_stmt *st = nullptr;
            const QByteArray s = QStringLiteral("ATTACH DATABASE ?1 AS %1").arg(a.alias).toUtf8();
            if (sqlite3_prepare_v2(db, s.constData(), -1, &st, nullptr) != SQLITE_OK)
                fail(sql);
            const QByteArray path = a.path.toUtf8();
            sqlite3_bind_text(st, 1, path.constData(), int(path.size()), SQLITE_TRANSIENT);
            const int rc = sqlite3_step(st);
            sqlite3_finalize(st);
            if (rc != SQLITE_DONE)
                fail(sql);
            attached.push_back(a.alias);
        }
        if (tr.copyAll) {
            // Rows are matched to the destination by column name; a source
            // column the destination lacks stops the copy before it starts.
            const std::vector<ColumnDef> *dest = columnsOf(tr.copyTable);
            if (!dest)
                throw DatabaseError(QStringLiteral("A tabela '%1' não existe.").arg(tr.copyTable), sql);
            QStringList names;
            sqlite3_stmt *st = nullptr;
            // The schema goes as the pragma's second argument: a schema
            // prefix before pragma_table_info would read the main file's table.
            if (sqlite3_prepare_v2(db, "SELECT name FROM pragma_table_info(?1, ?2)", -1, &st, nullptr) != SQLITE_OK)
                fail(sql);
            const QByteArray t = tr.copySourceTable.toUtf8();
            const QByteArray alias = tr.copySourceAlias.toUtf8();
            sqlite3_bind_text(st, 1, t.constData(), int(t.size()), SQLITE_TRANSIENT);
            sqlite3_bind_text(st, 2, alias.constData(), int(alias.size()), SQLITE_TRANSIENT);
            while (sqlite3_step(st) == SQLITE_ROW)
                names << QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st, 0)));
            sqlite3_finalize(st);
            if (names.isEmpty())
                throw DatabaseError(QStringLiteral("A tabela '%1' não existe no arquivo de origem.").arg(tr.copySourceTable), sql);
            for (const QString &n : names) {
                bool found = false;
                for (const ColumnDef &c : *dest)
                    found = found || c.name.compare(n, Qt::CaseInsensitive) == 0;
                if (!found)
                    throw DatabaseError(QStringLiteral("O campo '%1' não existe na tabela de destino '%2'.").arg(n, tr.copyTable), sql);
            }
            const QString list = names.join(u',');
            const qsizetype from = text.indexOf(QStringLiteral("FROM"), 0, Qt::CaseInsensitive);
            const qsizetype after = text.indexOf(tr.copySourceAlias + u'.', from);
            const qsizetype tableEnd = after + tr.copySourceAlias.size() + 1 + tr.copySourceTable.size();
            text = QStringLiteral("INSERT INTO main.%1 (%2) SELECT %2 FROM %3.%4%5")
                       .arg(tr.copyTable, list, tr.copySourceAlias, tr.copySourceTable, text.mid(tableEnd));
        }
        Prepared p;
        if (sqlite3_prepare16_v2(db, text.utf16(), int(text.size() * 2), &p.stmt, nullptr) != SQLITE_OK)
            fail(sql);
        if (!p.stmt)
            throw DatabaseError(QStringLiteral("Instrução SQL inválida."), sql);
        p.columns = describe(p.stmt);
        p.params = tr.params;
        bind(p, sql);
        run(p, sql, rs, affected);
    } catch (...) {
        detachAll();
        throw;
    }
    detachAll();
    if (tr.changesSchema)
        forgetSchema();
}

Connection::Connection() : impl_(std::make_unique<Impl>()) {}

Connection::~Connection() { Close(); }

void Connection::Open(const QString &connectionString)
{
    if (impl_->db)
        throw DatabaseError(QStringLiteral("A operação não é permitida quando o objeto está aberto."), connectionString);
    const QString key = QStringLiteral("Data Source=");
    const qsizetype at = connectionString.indexOf(key, 0, Qt::CaseInsensitive);
    if (at < 0)
        throw DatabaseError(QStringLiteral("Cadeia de conexão sem 'Data Source'."), connectionString);
    QString path = connectionString.mid(at + key.size());
    const qsizetype semi = path.indexOf(u';');
    if (semi >= 0)
        path.truncate(semi);
    path = path.trimmed();
    if (path.isEmpty() || !QFileInfo(path).isFile())
        throw DatabaseError(QStringLiteral("Não foi possível encontrar o arquivo '%1'.").arg(path), connectionString);

    // Anything else (an empty file above all) would be taken for an empty
    // database and changed on the first statement.
    if (!isSystemFile(path))
        throw DatabaseError(QStringLiteral("Formato de banco de dados '%1' não reconhecido.").arg(path), connectionString);

    sqlite3 *db = nullptr;
    const QByteArray p = path.toUtf8();
    // A connection belongs to one thread: SQLite's own locking of it is not needed.
    if (sqlite3_open_v2(p.constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK) {
        const QString message = db ? engineMessage(db) : QStringLiteral("Falha ao abrir o arquivo.");
        sqlite3_close(db);
        throw DatabaseError(message, connectionString);
    }
    // Double-quoted text is always a literal of the dialect, never a column.
    sqlite3_db_config(db, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(db, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    sqlite3_busy_timeout(db, ConnectionTimeout * 1000);
    impl_->db = db;
    impl_->path = path;
    try {
        impl_->exec("PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL");
    } catch (const DatabaseError &e) {
        Close();
        throw DatabaseError(e.message(), connectionString);
    }
    registerFunctions(db);
    impl_->inUseKey = inUseKeyOf(path);
    ++openFiles()[impl_->inUseKey];
}

bool databaseInUse(const QString &path)
{
    return openFiles().value(inUseKeyOf(path)) > 0;
}

void Connection::Close()
{
    if (!impl_->db)
        return;
    if (!impl_->inUseKey.isEmpty() && --openFiles()[impl_->inUseKey] <= 0)
        openFiles().remove(impl_->inUseKey);
    impl_->inUseKey.clear();
    impl_->forgetSchema();  // finalizes the cached statements
    impl_->finalizeSteps();
    // The last connection to close checkpoints the journal into the file and
    // removes it, so that a closed file is one plain file.
    sqlite3_close_v2(impl_->db);
    impl_->db = nullptr;
    impl_->path.clear();
}

int Connection::State() const { return impl_->db ? 1 : 0; }

QString Connection::filePath() const { return impl_->path; }

Recordset Connection::Execute(const QString &sql, long *recordsAffected)
{
    if (!impl_->db)
        throw DatabaseError(kClosed, sql);
    Recordset rs;
    impl_->execute(sql, rs.impl_.get(), recordsAffected);
    return rs;
}

bool Connection::isSystemFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.read(16) != QByteArray("SQLite format 3", 16))
        return false;
    file.close();
    sqlite3 *db = nullptr;
    bool found = false;
    if (sqlite3_open_v2(path.toUtf8().constData(), &db, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr) == SQLITE_OK) {
        sqlite3_stmt *st = nullptr;
        if (sqlite3_prepare_v2(db, "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = 'Parametros' COLLATE NOCASE",
                               -1, &st, nullptr) == SQLITE_OK)
            found = sqlite3_step(st) == SQLITE_ROW;
        sqlite3_finalize(st);
    }
    sqlite3_close(db);
    return found;
}

void Connection::createFile(const QString &path)
{
    if (QFileInfo::exists(path))
        throw DatabaseError(QStringLiteral("O arquivo '%1' já existe.").arg(path), QString());
    sqlite3 *db = nullptr;
    const QByteArray p = path.toUtf8();
    if (sqlite3_open_v2(p.constData(), &db, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK) {
        const QString message = db ? engineMessage(db) : QStringLiteral("Falha ao criar o arquivo.");
        sqlite3_close(db);
        throw DatabaseError(message, path);
    }
    registerFunctions(db);
    QStringList statements{QStringLiteral("PRAGMA journal_mode=WAL"), QStringLiteral("BEGIN")};
    statements << SchemaCatalog::instance().createStatements() << QStringLiteral("COMMIT");
    for (const QString &s : statements) {
        char *err = nullptr;
        if (sqlite3_exec(db, s.toUtf8().constData(), nullptr, nullptr, &err) != SQLITE_OK) {
            const QString message = QString::fromUtf8(err ? err : "");
            sqlite3_free(err);
            sqlite3_close(db);
            throw DatabaseError(message, s);
        }
    }
    sqlite3_close(db);
}

// ---- Transaction -------------------------------------------------------------
// Outside a transaction, one that takes the write lock at once (so that another
// writer waits its turn rather than failing the step half way); inside one, a
// savepoint.

Transaction::Transaction(Connection &con) : con_(con)
{
    Connection::Impl *c = con_.impl();
    if (!c->db)
        throw DatabaseError(kClosed, QString());
    outermost_ = sqlite3_get_autocommit(c->db) != 0;
    if (!c->stepStatement(outermost_ ? Connection::Impl::Begin : Connection::Impl::Savepoint))
        c->fail(QString());
    open_ = true;
}

void Transaction::commit()
{
    if (!open_)
        return;
    Connection::Impl *c = con_.impl();
    if (!c->db)
        throw DatabaseError(kClosed, QString());
    if (!c->stepStatement(outermost_ ? Connection::Impl::Commit : Connection::Impl::Release))
        c->fail(QString());
    open_ = false;
}

Transaction::~Transaction()
{
    if (!open_)
        return;
    Connection::Impl *c = con_.impl();
    // A failure the engine answered by rolling back the whole transaction
    // has left nothing to go back to.
    if (!c->db || sqlite3_get_autocommit(c->db))
        return;
    if (outermost_) {
        c->stepStatement(Connection::Impl::Rollback);
    } else {
        c->stepStatement(Connection::Impl::RollbackTo);
        c->stepStatement(Connection::Impl::Release);
    }
}

// ---- Recordset ---------------------------------------------------------------

// Every statement makes a recordset and drops it: their innards are kept for
// the next one (the data store runs on one thread), small ones only.
namespace {
std::vector<Recordset::Impl *> &spareRecordsets()
{
    static auto *spare = new std::vector<Recordset::Impl *>;  // lives to the end of the program
    return *spare;
}
}

Recordset::Recordset()
{
    auto &spare = spareRecordsets();
    if (spare.empty()) {
        impl_ = std::make_unique<Impl>();
    } else {
        impl_.reset(spare.back());
        spare.pop_back();
    }
}

Recordset::~Recordset()
{
    if (!impl_)
        return;
    auto &spare = spareRecordsets();
    if (spare.size() >= 8 || impl_->cells.capacity() > 4096 || impl_->store.capacity() > 65536)
        return;
    Close();
    spare.push_back(impl_.release());
}
Recordset::Recordset(Recordset &&) noexcept = default;
Recordset &Recordset::operator=(Recordset &&) noexcept = default;

void Recordset::Open(const QString &sql, Connection &con, int cursorType, int lockType)
{
    if (!con.impl()->db)
        throw DatabaseError(kClosed, sql);
    Close();
    con.impl()->execute(sql, impl_.get(), nullptr);
    impl_->keyset = cursorType != 0;
}

void Recordset::Close()
{
    impl_->open = false;
    impl_->keyset = false;
    impl_->clear();
    impl_->columns.reset();
}

int Recordset::State() const { return impl_->open ? 1 : 0; }

bool Recordset::eof() const
{
    if (!impl_->open)
        throw DatabaseError(kClosed, QString());
    return impl_->current >= impl_->rows;
}

void Recordset::moveNext()
{
    if (eof())
        throw DatabaseError(kNoCurrentRecord, QString());
    ++impl_->current;
}

void Recordset::moveFirst()
{
    if (!impl_->open)
        throw DatabaseError(kClosed, QString());
    impl_->current = 0;
}

long Recordset::recordCount() const
{
    if (!impl_->open)
        throw DatabaseError(kClosed, QString());
    return impl_->keyset ? long(impl_->rows) : -1;
}

const Field &Recordset::operator[](const QString &column) const
{
    if (eof())
        throw DatabaseError(kNoCurrentRecord, column);
    const ColumnSet &cols = *impl_->columns;
    const auto remembered = cols.asked.constFind(column.constData());
    if (remembered != cols.asked.constEnd() && remembered->first.size() == column.size())
        return impl_->field(size_t(remembered->second));
    qsizetype index = -1;
    for (qsizetype c = 0; c < cols.names.size() && index < 0; ++c)
        if (cols.names[c].compare(column, Qt::CaseInsensitive) == 0)
            index = c;
    // "Aptos.nome" names the column of that table where two tables give one name.
    if (index < 0 && column.contains(u'.'))
        for (qsizetype c = 0; c < cols.origins.size() && index < 0; ++c)
            if (cols.origins[c].compare(column, Qt::CaseInsensitive) == 0)
                index = c;
    if (index < 0)
        throw DatabaseError(
            QStringLiteral("Item não encontrado na coleção correspondente ao nome ou ao ordinal solicitado."), column);
    if (cols.asked.size() < 256)
        cols.asked.insert(column.constData(), {column, index});
    return impl_->field(size_t(index));
}

QStringList Recordset::columnNames() const { return impl_->columns ? impl_->columns->names : QStringList(); }

const Field &Recordset::fieldAt(int index) const
{
    if (eof())
        throw DatabaseError(kNoCurrentRecord, QString());
    if (index < 0 || size_t(index) >= impl_->width())
        throw DatabaseError(
            QStringLiteral("Item não encontrado na coleção correspondente ao nome ou ao ordinal solicitado."), QString());
    return impl_->field(size_t(index));
}
