#include "core/jetdialect.h"

#include <QDate>
#include <algorithm>
#include <charconv>
#include <cmath>

namespace jet {

namespace {

// ASCII answered at once; the tables of Unicode only beyond it.
bool isAsciiLetter(char16_t c) { return (c | 0x20) >= u'a' && (c | 0x20) <= u'z'; }
bool isIdentStart(QChar c)
{
    const char16_t u = c.unicode();
    return u < 0x80 ? isAsciiLetter(u) || u == u'_' : c.isLetter();
}
bool isIdentPart(QChar c)
{
    const char16_t u = c.unicode();
    return u < 0x80 ? isAsciiLetter(u) || (u >= u'0' && u <= u'9') || u == u'_' : c.isLetterOrNumber();
}
bool isBlank(QChar c)
{
    const char16_t u = c.unicode();
    return u < 0x80 ? u == u' ' || (u >= 9 && u <= 13) : c.isSpace();
}
bool isDigit(QChar c) { return c >= u'0' && c <= u'9'; }

bool is(const Token &t, QLatin1StringView word)
{
    return t.type == TokenType::Identifier && t.text.compare(word, Qt::CaseInsensitive) == 0;
}
bool isOp(const Token &t, QStringView op) { return t.type == TokenType::Operator && t.text == op; }
bool isLiteral(const Token &t)
{
    return t.type == TokenType::Text || t.type == TokenType::Number || t.type == TokenType::Date;
}

[[noreturn]] void fail(const QString &message, QStringView statement)
{
    throw DatabaseError(message, statement.toString());
}

const QString kTypeMismatch = QStringLiteral("Tipo de dados incompatível na expressão de critério.");
const QString kOverflow = QStringLiteral("Estouro de capacidade");

} // namespace

// ---- Lexing ----------------------------------------------------------------

namespace {

// An identifier against an upper-case ASCII keyword, without regard to case.
bool isWord(const Token &t, const char *word, qsizetype size)
{
    if (t.type != TokenType::Identifier || t.text.size() != size)
        return false;
    for (qsizetype i = 0; i < size; ++i) {
        const char16_t c = t.text[i].unicode();
        if ((c >= u'a' && c <= u'z' ? c - 32 : c) != char16_t(word[i]))
            return false;
    }
    return true;
}

template <size_t N>
bool isWord(const Token &t, const char (&word)[N])
{
    return isWord(t, word, qsizetype(N - 1));
}

} // namespace

// One walk over the text: each token is read, marked as a parameter or not
// (which depends on the tokens before it only) and written into the shape.
void lex(QStringView sql, Lexed &out)
{
    out.tokens.clear();
    out.cacheable = false;
    const qsizetype n = sql.size();
    // The shape is written straight into the key's memory, kept from the last
    // statement. Each token adds at most a blank and three characters for
    // every one of its own ("5" gives " ?n"), so 3n + 8 always holds it.
    out.key.resize(3 * n + 8);
    char16_t *const keyStart = reinterpret_cast<char16_t *>(out.key.data());
    char16_t *w = keyStart;
    auto put = [&w](QStringView s) {
        std::copy(s.utf16(), s.utf16() + s.size(), w);
        w += s.size();
    };
    // Which literals become parameters: none in other statements, numbers of
    // ORDER BY / GROUP BY (a bound number there would not name a column) and
    // the file of IN '<file>' stay in the text.
    bool byClause = false;
    bool setClause = false;
    qsizetype i = 0;
    while (true) {
        while (i < n && isBlank(sql[i]))
            ++i;
        if (i >= n)
            break;
        Token t;
        const QChar c = sql[i];
        const qsizetype start = i;
        if (isIdentStart(c)) {
            while (i < n && isIdentPart(sql[i]))
                ++i;
            t.type = TokenType::Identifier;
            t.text = sql.mid(start, i - start);
        } else if (c == u'[') {
            while (i < n && sql[i] != u']')
                ++i;
            if (i >= n)
                fail(QStringLiteral("Nome entre colchetes sem fechamento."), sql);
            ++i;
            t.type = TokenType::Identifier;
            t.text = sql.mid(start, i - start);
        } else if (isDigit(c) || (c == u'.' && i + 1 < n && isDigit(sql[i + 1]))) {
            while (i < n && isDigit(sql[i]))
                ++i;
            if (i < n && sql[i] == u'.') {
                ++i;
                while (i < n && isDigit(sql[i]))
                    ++i;
            }
            if (i < n && (sql[i] == u'e' || sql[i] == u'E')) {
                qsizetype k = i + 1;
                if (k < n && (sql[k] == u'+' || sql[k] == u'-'))
                    ++k;
                if (k < n && isDigit(sql[k])) {
                    i = k;
                    while (i < n && isDigit(sql[i]))
                        ++i;
                }
            }
            t.type = TokenType::Number;
            t.text = sql.mid(start, i - start);
        } else if (c == u'\'' || c == u'"') {
            // A doubled delimiter inside stands for one.
            ++i;
            while (true) {
                if (i >= n)
                    fail(QStringLiteral("Cadeia de caracteres sem fechamento na expressão de consulta."), sql);
                if (sql[i] == c) {
                    if (i + 1 < n && sql[i + 1] == c) {
                        t.escaped = true;
                        i += 2;
                        continue;
                    }
                    break;
                }
                ++i;
            }
            t.type = TokenType::Text;
            t.doubleQuoted = c == u'"';
            t.text = sql.mid(start + 1, i - start - 1);
            ++i;
        } else if (c == u'#') {
            ++i;
            while (i < n && sql[i] != u'#')
                ++i;
            if (i >= n)
                fail(QStringLiteral("Erro de sintaxe na data na expressão de consulta."), sql);
            t.type = TokenType::Date;
            t.text = sql.mid(start + 1, i - start - 1);
            ++i;
        } else {
            // Two-character operators: <> <= >= != || ==.
            qsizetype len = 1;
            if (i + 1 < n) {
                const char16_t a = c.unicode(), b = sql[i + 1].unicode();
                if ((a == u'<' && (b == u'>' || b == u'=')) || ((a == u'>' || a == u'!' || a == u'=') && b == u'=') ||
                    (a == u'|' && b == u'|'))
                    len = 2;
            }
            t.type = TokenType::Operator;
            t.text = sql.mid(start, len);
            i += len;
        }

        const Token *prev = out.tokens.empty() ? nullptr : &out.tokens.back();
        if (!prev)
            out.cacheable = isWord(t, "SELECT") || isWord(t, "INSERT") || isWord(t, "UPDATE") || isWord(t, "DELETE");
        if (t.type == TokenType::Identifier) {
            if (prev && isWord(t, "BY") && (isWord(*prev, "ORDER") || isWord(*prev, "GROUP")))
                byClause = true;
            if (isWord(t, "SET"))
                setClause = true;
            if (isWord(t, "WHERE"))
                setClause = false;
        }
        if (out.cacheable && isLiteral(t)) {
            const bool fileName = t.type == TokenType::Text && prev && isWord(*prev, "IN");
            const bool byNumber = t.type == TokenType::Number && byClause;
            // An empty text compared with a column is no number and no date:
            // it stays text, so that "not diavcto = ''" holds for every day
            // that is there. Written by SET it still means Null.
            const bool emptyCompared = t.type == TokenType::Text && t.text.isEmpty() && !setClause && prev &&
                                       prev->type == TokenType::Operator &&
                                       (prev->text == u"=" || prev->text == u"<>");
            t.param = !fileName && !byNumber && !emptyCompared;
        }

        if (prev)
            *w++ = u' ';
        if (t.param) {
            *w++ = u'?';
            *w++ = t.type == TokenType::Text ? u's' : t.type == TokenType::Number ? u'n' : u'd';
        } else if (t.type == TokenType::Text) {
            const char16_t q = t.doubleQuoted ? u'"' : u'\'';
            *w++ = q;
            put(t.text);
            *w++ = q;
        } else if (t.type == TokenType::Date) {
            *w++ = u'#';
            put(t.text);
            *w++ = u'#';
        } else {
            put(t.text);
        }
        out.tokens.push_back(t);
    }
    out.key.resize(w - keyStart);
}

QString literalText(const Token &token)
{
    if (!token.escaped)
        return token.text.toString();
    QString s = token.text.toString();
    s.replace(token.doubleQuoted ? QStringLiteral("\"\"") : QStringLiteral("''"),
              token.doubleQuoted ? QStringLiteral("\"") : QStringLiteral("'"));
    return s;
}

// ---- Translation -------------------------------------------------------------

namespace {

const char *const kReserved[] = {"WHERE", "INNER", "LEFT", "RIGHT", "OUTER", "FULL", "CROSS", "JOIN", "ON",
                                 "ORDER", "GROUP", "HAVING", "SET", "IN", "VALUES", "SELECT", "UNION",
                                 "AS", "LIMIT", "AND", "OR", "NOT", "FROM"};

bool isReserved(const Token &t)
{
    if (t.type != TokenType::Identifier)
        return true;
    for (const char *w : kReserved)
        if (is(t, QLatin1StringView(w)))
            return true;
    return false;
}

QString bareName(QStringView name)
{
    if (name.startsWith(u'[') && name.endsWith(u']'))
        return name.mid(1, name.size() - 2).toString();
    return name.toString();
}

struct TableRef {
    QString name, alias;
    const std::vector<ColumnDef> *columns = nullptr;
};

class Translator {
public:
    Translator(const Lexed &lexed, const ColumnLookup &lookup) : t_(lexed.tokens), lookup_(lookup), lexed_(lexed) {}

    Translation run()
    {
        if (!t_.empty() && !lexed_.cacheable) {
            const Token &f = t_.front();
            res_.changesSchema = is(f, QLatin1StringView("CREATE")) || is(f, QLatin1StringView("ALTER")) ||
                                 is(f, QLatin1StringView("DROP"));
        }
        collectTables();
        detectCopy();
        emitAll();
        return std::move(res_);
    }

private:
    const std::vector<Token> &t_;
    const ColumnLookup &lookup_;
    const Lexed &lexed_;
    Translation res_;
    std::vector<TableRef> tables_;
    std::vector<size_t> fileTokens_;          // index of the IN before a file name
    std::vector<QString> fileAliasOfTable_;   // per entry of fileTokens_
    QString sql_;

    const Token &at(size_t k) const
    {
        static const Token end;
        return k < t_.size() ? t_[k] : end;
    }

    void collectTables()
    {
        for (size_t k = 0; k < t_.size(); ++k) {
            const bool from = is(t_[k], QLatin1StringView("FROM"));
            if (!(from || is(t_[k], QLatin1StringView("JOIN")) || is(t_[k], QLatin1StringView("UPDATE")) ||
                  is(t_[k], QLatin1StringView("INTO"))))
                continue;
            size_t j = k + 1;
            while (j < t_.size() && t_[j].type == TokenType::Identifier && !isReserved(t_[j])) {
                TableRef ref;
                ref.name = bareName(t_[j].text);
                ++j;
                if (is(at(j), QLatin1StringView("IN")) && at(j + 1).type == TokenType::Text) {
                    Attachment a;
                    a.path = literalText(at(j + 1));
                    a.alias = QStringLiteral("jetsrc%1").arg(res_.attachments.size());
                    res_.attachments.push_back(a);
                    fileTokens_.push_back(j);
                    fileAliasOfTable_.push_back(a.alias);
                    j += 2;
                } else if (is(at(j), QLatin1StringView("AS")) && at(j + 1).type == TokenType::Identifier) {
                    ref.alias = bareName(at(j + 1).text);
                    j += 2;
                } else if (at(j).type == TokenType::Identifier && !isReserved(at(j))) {
                    ref.alias = bareName(at(j).text);
                    ++j;
                }
                ref.columns = lookup_ ? lookup_(ref.name) : nullptr;
                tables_.push_back(ref);
                if (!(from && isOp(at(j), u",")))
                    break;
                ++j;
            }
        }
    }

    // INSERT INTO t SELECT * FROM s IN '<file>' ...
    void detectCopy()
    {
        if (t_.size() >= 9 && is(t_[0], QLatin1StringView("INSERT")) && is(t_[1], QLatin1StringView("INTO")) &&
            t_[2].type == TokenType::Identifier && is(t_[3], QLatin1StringView("SELECT")) && isOp(t_[4], u"*") &&
            is(t_[5], QLatin1StringView("FROM")) && t_[6].type == TokenType::Identifier &&
            is(t_[7], QLatin1StringView("IN")) && t_[8].type == TokenType::Text) {
            res_.copyAll = true;
            res_.copyTable = bareName(t_[2].text);
            res_.copySourceTable = bareName(t_[6].text);
            res_.copySourceAlias = res_.attachments.front().alias;
        }
    }

    const ColumnDef *findColumn(const QString &qualifier, const QString &name) const
    {
        for (const TableRef &ref : tables_) {
            if (!qualifier.isEmpty() && ref.name.compare(qualifier, Qt::CaseInsensitive) != 0 &&
                ref.alias.compare(qualifier, Qt::CaseInsensitive) != 0)
                continue;
            if (!ref.columns)
                continue;
            for (const ColumnDef &c : *ref.columns)
                if (c.name.compare(name, Qt::CaseInsensitive) == 0)
                    return &c;
        }
        return nullptr;
    }

    // The column named just before token k (exclusive), if any.
    std::optional<ColumnKind> columnBefore(size_t k) const
    {
        if (k == 0 || t_[k - 1].type != TokenType::Identifier || isReserved(t_[k - 1]))
            return std::nullopt;
        QString qualifier;
        if (k >= 3 && isOp(t_[k - 2], u".") && t_[k - 3].type == TokenType::Identifier)
            qualifier = bareName(t_[k - 3].text);
        if (const ColumnDef *c = findColumn(qualifier, bareName(t_[k - 1].text)))
            return c->kind;
        return std::nullopt;
    }

    // Targets of every parameter literal, by position.
    std::vector<std::optional<ColumnKind>> targets() const
    {
        std::vector<std::optional<ColumnKind>> out(t_.size());
        // Comparisons and assignments: column OP literal.
        std::optional<ColumnKind> between;
        int betweenLeft = 0;
        std::optional<ColumnKind> list;
        int listDepth = 0, depth = 0;
        for (size_t k = 0; k < t_.size(); ++k) {
            const Token &tok = t_[k];
            if (isOp(tok, u"("))
                ++depth;
            if (isOp(tok, u")")) {
                if (list && depth == listDepth)
                    list.reset();
                --depth;
            }
            if (tok.type == TokenType::Operator &&
                (tok.text == u"=" || tok.text == u"<>" || tok.text == u"<" || tok.text == u">" ||
                 tok.text == u"<=" || tok.text == u">=" || tok.text == u"!=" || tok.text == u"==")) {
                if (isLiteral(at(k + 1)))
                    out[k + 1] = columnBefore(k);
            } else if (is(tok, QLatin1StringView("BETWEEN"))) {
                between = columnBefore(k);
                betweenLeft = 2;
            } else if (is(tok, QLatin1StringView("IN")) && isOp(at(k + 1), u"(")) {
                list = columnBefore(k);
                listDepth = depth + 1;
            } else if (isLiteral(tok)) {
                if (betweenLeft > 0) {
                    out[k] = between;
                    --betweenLeft;
                } else if (list && depth == listDepth) {
                    out[k] = list;
                }
            }
        }
        insertTargets(out);
        return out;
    }

    // INSERT INTO t [(c1, c2, ...)] VALUES (v1, v2, ...): vi meets ci.
    void insertTargets(std::vector<std::optional<ColumnKind>> &out) const
    {
        if (t_.size() < 4 || !is(t_[0], QLatin1StringView("INSERT")) || !is(t_[1], QLatin1StringView("INTO")))
            return;
        const QString table = bareName(t_[2].text);
        QStringList names;
        size_t k = 3;
        if (isOp(at(k), u"(")) {
            for (++k; k < t_.size() && !isOp(t_[k], u")"); ++k)
                if (t_[k].type == TokenType::Identifier)
                    names << bareName(t_[k].text);
            ++k;
        }
        if (!is(at(k), QLatin1StringView("VALUES")) || !isOp(at(k + 1), u"("))
            return;
        const std::vector<ColumnDef> *cols = nullptr;
        for (const TableRef &ref : tables_)
            if (ref.name.compare(table, Qt::CaseInsensitive) == 0)
                cols = ref.columns;
        if (!cols)
            return;
        auto kindOf = [&](int index) -> std::optional<ColumnKind> {
            if (!names.isEmpty()) {
                if (index >= names.size())
                    return std::nullopt;
                for (const ColumnDef &c : *cols)
                    if (c.name.compare(names[index], Qt::CaseInsensitive) == 0)
                        return c.kind;
                return std::nullopt;
            }
            if (index < int(cols->size()))
                return (*cols)[size_t(index)].kind;
            return std::nullopt;
        };
        int depth = 0, index = 0;
        for (size_t j = k + 2; j < t_.size(); ++j) {
            const Token &tok = t_[j];
            if (isOp(tok, u"(")) {
                ++depth;
            } else if (isOp(tok, u")")) {
                if (depth == 0)
                    break;
                --depth;
            } else if (isOp(tok, u",") && depth == 0) {
                ++index;
            } else if (isLiteral(tok) && depth == 0) {
                // Only a literal that is the whole value meets the column.
                const Token &prev = t_[j - 1];
                const Token &next = at(j + 1);
                if ((isOp(prev, u"(") || isOp(prev, u",")) && (isOp(next, u",") || isOp(next, u")")))
                    out[j] = kindOf(index);
            }
        }
    }

    void put(QStringView s)
    {
        const bool call = s == u"(" && !sql_.isEmpty() && (sql_.back().isLetterOrNumber() || sql_.back() == u'_');
        if (!sql_.isEmpty() && !sql_.endsWith(u'.') && s != u"." && s != u"," && s != u")" &&
            !sql_.endsWith(u'(') && !call)
            sql_ += u' ';
        sql_ += s;
    }

    static QString quoted(const QString &text)
    {
        QString s = text;
        s.replace(u'\'', QStringLiteral("''"));
        return u'\'' + s + u'\'';
    }

    // An expression assigned to a money column by UPDATE ... SET goes through
    // jet_money(), which rounds it to four places and fails the statement when
    // the currency cannot hold it. A bare literal is checked when it is bound.
    bool wrapsMoney(size_t k, int depth) const
    {
        if (depth != 0 || !isOp(t_[k], u"=") || !is(at(0), QLatin1StringView("UPDATE")) ||
            columnBefore(k) != ColumnKind::Money)
            return false;
        const Token &after = at(k + 2);
        const bool loneLiteral = isLiteral(at(k + 1)) && (after.type == TokenType::End || isOp(after, u",") ||
                                                          is(after, QLatin1StringView("WHERE")));
        return !loneLiteral;
    }

    void emitAll()
    {
        const auto target = targets();
        bool inSet = false, wrapping = false;
        int depth = 0;
        for (size_t k = 0; k < t_.size(); ++k) {
            const Token &tok = t_[k];
            if (wrapping && depth == 0 && (isOp(tok, u",") || is(tok, QLatin1StringView("WHERE")))) {
                put(u")");
                wrapping = false;
            }
            if (is(tok, QLatin1StringView("SET")))
                inSet = true;
            else if (is(tok, QLatin1StringView("WHERE")) && depth == 0)
                inSet = false;
            if (isOp(tok, u"("))
                ++depth;
            else if (isOp(tok, u")"))
                --depth;
            if (inSet && !wrapping && wrapsMoney(k, depth)) {
                put(u"=");
                put(u"jet_money");
                put(u"(");
                wrapping = true;
                continue;
            }
            // IN '<file>' after a table: the table is read from the attached file.
            const auto file = std::find(fileTokens_.begin(), fileTokens_.end(), k + 1);
            if (file != fileTokens_.end() && tok.type == TokenType::Identifier) {
                put(fileAliasOfTable_[size_t(file - fileTokens_.begin())] + u'.' + bareName(tok.text));
                ++k;  // the IN
                ++k;  // the file name
                continue;
            }
            switch (tok.type) {
            case TokenType::Identifier:
                if (isOp(at(k + 1), u"(") && !(k > 0 && isOp(t_[k - 1], u"."))) {
                    if (is(tok, QLatin1StringView("LEFT"))) {
                        put(u"jet_left");
                        break;
                    }
                    if (is(tok, QLatin1StringView("RIGHT"))) {
                        put(u"jet_right");
                        break;
                    }
                    if (is(tok, QLatin1StringView("ROUND"))) {
                        put(u"jet_round");
                        break;
                    }
                    if (is(tok, QLatin1StringView("ISNULL"))) {  // a keyword of SQLite
                        put(u"jet_isnull");
                        break;
                    }
                }
                if (!(k > 0 && isOp(t_[k - 1], u".")) && !isOp(at(k + 1), u".")) {
                    // A boolean field concatenated into a statement gives the Portuguese words.
                    if (is(tok, QLatin1StringView("TRUE")) || is(tok, QLatin1StringView("VERDADEIRO"))) {
                        put(u"1");
                        break;
                    }
                    if (is(tok, QLatin1StringView("FALSE")) || is(tok, QLatin1StringView("FALSO"))) {
                        put(u"0");
                        break;
                    }
                }
                put(tok.text);
                if (k == 0 && is(tok, QLatin1StringView("DELETE")) && isOp(at(1), u"*"))
                    ++k;  // DELETE * FROM
                break;
            case TokenType::Operator:
                if (tok.text == u"&")
                    put(u"||");
                else if (tok.text == u"==")
                    put(u"=");
                else
                    put(tok.text);
                break;
            case TokenType::Number:
                if (tok.param) {
                    put(u"?");
                    res_.params.push_back({target[k]});
                } else {
                    put(tok.text);
                }
                break;
            case TokenType::Text:
                if (tok.param) {
                    put(u"?");
                    res_.params.push_back({target[k]});
                } else {
                    put(quoted(literalText(tok)));
                }
                break;
            case TokenType::Date:
                if (tok.param) {
                    put(u"?");
                    res_.params.push_back({target[k]});
                } else {
                    const QDate d = readDateLiteral(tok.text);
                    if (!d.isValid())
                        fail(QStringLiteral("Erro de sintaxe na data na expressão de consulta."), QString());
                    put(quoted(d.toString(Qt::ISODate)));
                }
                break;
            case TokenType::End:
                break;
            }
        }
        if (wrapping)
            put(u")");
        res_.sql = sql_;
    }
};

} // namespace

Translation translate(const Lexed &lexed, const ColumnLookup &columns)
{
    return Translator(lexed, columns).run();
}

// ---- Readings ----------------------------------------------------------------

namespace {

// Splits "a/b/c" (or with '-') into numbers; false when a part is no number.
bool splitNumbers(QStringView text, int parts[3], int widths[3], int &count)
{
    count = 0;
    qsizetype i = 0;
    const qsizetype n = text.size();
    while (i < n) {
        if (count == 3)
            return false;
        const qsizetype start = i;
        int v = 0;
        while (i < n && isDigit(text[i])) {
            v = v * 10 + (text[i].unicode() - u'0');
            if (v > 100000)
                return false;
            ++i;
        }
        if (i == start)
            return false;
        parts[count] = v;
        widths[count] = int(i - start);
        ++count;
        if (i < n) {
            if (text[i] != u'/' && text[i] != u'-' && text[i] != u'.')
                return false;
            ++i;
            if (i == n)
                return false;
        }
    }
    return count >= 2;
}

int fullYear(int y, int width) { return width <= 2 ? (y < 30 ? 2000 + y : 1900 + y) : y; }

// The engine's dates run from the year 100 to 9999; anything else is no date
// (a five-digit year would otherwise reach SQLite as text).
QDate inRange(const QDate &d) { return d.isValid() && d.year() >= 100 && d.year() <= 9999 ? d : QDate(); }

QStringView datePart(QStringView text)
{
    text = text.trimmed();
    const qsizetype space = text.indexOf(u' ');
    return space < 0 ? text : text.left(space);
}

} // namespace

namespace {
QDate literalReading(QStringView text)
{
    int p[3], w[3], count = 0;
    if (!splitNumbers(datePart(text), p, w, count))
        return {};
    if (count == 2)  // mm/yyyy
        return w[1] >= 3 ? QDate(p[1], p[0], 1) : QDate();
    if (w[0] >= 3)   // yyyy-mm-dd
        return QDate(p[0], p[1], p[2]);
    const int year = fullYear(p[2], w[2]);
    if (p[0] > 12)
        return QDate(year, p[1], p[0]);
    QDate d(year, p[0], p[1]);
    return d.isValid() ? d : QDate(year, p[1], p[0]);
}

QDate textReading(QStringView text)
{
    int p[3], w[3], count = 0;
    if (!splitNumbers(datePart(text), p, w, count))
        return {};
    if (count == 2)
        return w[1] >= 3 ? QDate(p[1], p[0], 1) : QDate();
    if (w[0] >= 3)
        return QDate(p[0], p[1], p[2]);
    const int year = fullYear(p[2], w[2]);
    QDate d(year, p[1], p[0]);
    return d.isValid() ? d : QDate(year, p[0], p[1]);
}
} // namespace

QDate readDateLiteral(QStringView text) { return inRange(literalReading(text)); }

QDate readDateText(QStringView text) { return inRange(textReading(text)); }

std::optional<double> readNumberText(QStringView text)
{
    text = text.trimmed();
    if (text.isEmpty())
        return std::nullopt;
    // The digits, sign and point go to a buffer on the stack when they fit.
    char small[64];
    std::string large;
    char *s = small;
    if (text.size() >= qsizetype(sizeof small)) {
        large.resize(size_t(text.size()) + 1);
        s = large.data();
    }
    char *w = s;
    qsizetype i = 0;
    if (text[0] == u'-' || text[0] == u'+') {
        if (text[0] == u'-')
            *w++ = '-';
        i = 1;
    }
    qsizetype lastSep = -1;
    int points = 0, commas = 0;
    for (qsizetype k = i; k < text.size(); ++k) {
        const QChar c = text[k];
        if (c == u'.' || c == u',') {
            lastSep = k;
            (c == u'.' ? points : commas)++;
        } else if (!isDigit(c)) {
            return std::nullopt;
        }
    }
    // One separator of a kind, alone or last after the other kind, is the
    // decimal one; repeated points alone are thousands.
    qsizetype decimal = lastSep;
    if (lastSep >= 0) {
        const QChar dc = text[lastSep];
        const int sameKind = dc == u'.' ? points : commas;
        if (sameKind > 1) {
            if (dc == u',' || commas > 0)
                return std::nullopt;
            decimal = -1;  // "1.234.567"
        }
    }
    bool digits = false;
    for (qsizetype k = i; k < text.size(); ++k) {
        const QChar c = text[k];
        if (isDigit(c)) {
            *w++ = char(c.unicode());
            digits = true;
        } else if (k == decimal) {
            *w++ = '.';
        }
    }
    if (!digits)
        return std::nullopt;
    double v = 0;
    const auto r = std::from_chars(s, w, v);
    if (r.ec != std::errc())
        return std::nullopt;
    return v;
}

double roundHalfEven(double value, int places)
{
    if (!std::isfinite(value))
        return value;
    const double scale = std::pow(10.0, places);
    const double v = value * scale;
    const double f = std::floor(v);
    const double diff = v - f;
    double r;
    // A tie in decimal (2.5, 0.125 * 100) may be a hair off in binary.
    if (std::fabs(diff - 0.5) <= 1e-9 * std::max(1.0, std::fabs(v)))
        r = std::fmod(f, 2.0) == 0 ? f : f + 1;
    else
        r = std::floor(v + 0.5);
    return r / scale;
}

// ---- Conversion of parameters ----------------------------------------------

namespace {

// A number as the statement writes it: digits, a decimal point, an exponent.
std::optional<double> numberToken(QStringView t)
{
    // The token holds digits, a point and an exponent only: ASCII.
    char small[64];
    std::string large;
    char *s = small;
    if (t.size() >= qsizetype(sizeof small)) {
        large.resize(size_t(t.size()));
        s = large.data();
    }
    for (qsizetype i = 0; i < t.size(); ++i)
        s[i] = t[i].unicode() < 0x80 ? char(t[i].unicode()) : '?';
    double v = 0;
    const auto r = std::from_chars(s, s + t.size(), v);
    if (r.ec != std::errc() || r.ptr != s + t.size())
        return std::nullopt;
    return v;
}

bool isIntegralText(QStringView t)
{
    for (QChar c : t)
        if (!isDigit(c))
            return false;
    return !t.isEmpty() && t.size() <= 18;
}

// A date for a date column: "yyyy-mm-dd" kept in the value itself for a
// four-digit year, without a trip through QLocale or the heap.
void setIsoDate(BoundValue &b, const QDate &d)
{
    b.type = BoundValue::Text;
    int y = 0, m = 0, day = 0;
    d.getDate(&y, &m, &day);
    if (y < 1000 || y > 9999) {
        b.text = d.toString(Qt::ISODate);
        return;
    }
    const char s[10] = {char('0' + y / 1000), char('0' + y / 100 % 10), char('0' + y / 10 % 10), char('0' + y % 10), '-',
                        char('0' + m / 10),   char('0' + m % 10),       '-',
                        char('0' + day / 10), char('0' + day % 10)};
    std::copy(s, s + 10, b.iso);
    b.isoDate = true;
}

BoundValue numberValue(double v, ColumnKind kind)
{
    BoundValue b;
    if (kind == ColumnKind::Money) {
        b.type = BoundValue::Real;
        b.d = Money::fromDouble(v).toDouble();
    } else if (kind == ColumnKind::Boolean) {
        b.type = BoundValue::Integer;
        b.i = v != 0 ? 1 : 0;
    } else if (std::nearbyint(v) == v && std::fabs(v) < 9e15) {
        b.type = BoundValue::Integer;
        b.i = qint64(v);
    } else {
        b.type = BoundValue::Real;
        b.d = v;
    }
    return b;
}

// A value the column cannot hold (money beyond the currency's range) fails
// the one statement, never the run.
BoundValue checkedValue(double v, ColumnKind kind, QStringView statement)
{
    try {
        return numberValue(v, kind);
    } catch (const std::overflow_error &) {
        fail(kOverflow, statement);
    }
}

} // namespace

BoundValue convert(const Token &token, const ParamTarget &target, QStringView statement)
{
    BoundValue b;
    const std::optional<ColumnKind> kind = target.kind;
    switch (token.type) {
    case TokenType::Number: {
        if (kind == ColumnKind::Text) {
            b.type = BoundValue::Text;
            return b;
        }
        if (kind == ColumnKind::Date) {
            // A bare number meets a date column as the engine's day count
            // (0 is 30/12/1899); the fraction is the time of day.
            const std::optional<double> v = numberToken(token.text);
            const QDate d = v && std::fabs(*v) < 3e6 ? inRange(QDate(1899, 12, 30).addDays(qint64(std::floor(*v))))
                                                     : QDate();
            if (!d.isValid())
                fail(QStringLiteral("Erro de sintaxe na data na expressão de consulta."), statement);
            b.type = BoundValue::Text;
            b.text = d.toString(Qt::ISODate);
            return b;
        }
        if (isIntegralText(token.text) && kind != ColumnKind::Money && kind != ColumnKind::Boolean) {
            b.type = BoundValue::Integer;
            b.i = token.text.toLongLong();
            return b;
        }
        const std::optional<double> v = numberToken(token.text);
        if (!v)
            fail(kTypeMismatch, statement);
        return checkedValue(*v, kind.value_or(ColumnKind::Number), statement);
    }
    case TokenType::Date: {
        const QDate d = readDateLiteral(token.text);
        if (!d.isValid())
            fail(QStringLiteral("Erro de sintaxe na data na expressão de consulta."), statement);
        // A date written to a text column is kept as the screen shows it.
        if (kind == ColumnKind::Text) {
            b.type = BoundValue::Text;
            b.text = d.toString(QStringLiteral("dd/MM/yyyy"));
        } else {
            setIsoDate(b, d);
        }
        return b;
    }
    case TokenType::Text:
        break;
    default:
        return b;
    }

    if (!kind || *kind == ColumnKind::Text) {
        b.type = BoundValue::Text;
        if (token.escaped)
            b.text = literalText(token);
        return b;
    }
    const QString unescaped = token.escaped ? literalText(token) : QString();
    const QStringView text = (token.escaped ? QStringView(unescaped) : token.text).trimmed();
    if (text.isEmpty())
        return b;  // Null
    switch (*kind) {
    case ColumnKind::Date: {
        const QDate d = readDateText(text);
        if (!d.isValid())
            fail(kTypeMismatch, statement);
        setIsoDate(b, d);
        return b;
    }
    case ColumnKind::Boolean: {
        const QString t = text.toString().toLower();
        if (t == u"true" || t == u"verdadeiro" || t == u"sim")
            return numberValue(1, ColumnKind::Boolean);
        if (t == u"false" || t == u"falso" || t == u"não" || t == u"nao")
            return numberValue(0, ColumnKind::Boolean);
        const std::optional<double> v = readNumberText(text);
        if (!v)
            fail(kTypeMismatch, statement);
        return numberValue(*v, ColumnKind::Boolean);
    }
    default: {
        const std::optional<double> v = readNumberText(text);
        if (!v)
            fail(kTypeMismatch, statement);
        return checkedValue(*v, *kind, statement);
    }
    }
}

} // namespace jet
