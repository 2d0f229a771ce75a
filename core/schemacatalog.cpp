#include "core/schemacatalog.h"

#include <QRegularExpression>
#include <stdexcept>

namespace {

const char kSchemaText[] =
#include "schema/tables.def"
    ;

// "po{02-08}{01-12}" -> po0201 .. po0812; a name without braces is itself.
QStringList expand(const QString &pattern, int line)
{
    const qsizetype open = pattern.indexOf(u'{');
    if (open < 0)
        return {pattern};
    const qsizetype close = pattern.indexOf(u'}', open);
    const qsizetype dash = pattern.indexOf(u'-', open);
    if (close < 0 || dash < 0 || dash > close)
        throw std::runtime_error("schema: faixa malformada na linha " + std::to_string(line));
    const QString fromText = pattern.mid(open + 1, dash - open - 1);
    bool ok1 = false, ok2 = false;
    const int from = fromText.toInt(&ok1);
    const int to = pattern.mid(dash + 1, close - dash - 1).toInt(&ok2);
    if (!ok1 || !ok2 || to < from)
        throw std::runtime_error("schema: faixa malformada na linha " + std::to_string(line));
    QStringList out;
    for (int v = from; v <= to; ++v) {
        const QString name = pattern.left(open) + QStringLiteral("%1").arg(v, int(fromText.size()), 10, QLatin1Char('0')) +
                             pattern.mid(close + 1);
        out += expand(name, line);
    }
    return out;
}

bool kindFromWord(const QString &w, ColumnKind &kind)
{
    static const std::pair<const char *, ColumnKind> words[] = {
        {"text", ColumnKind::Text},       {"number", ColumnKind::Number},   {"money", ColumnKind::Money},
        {"date", ColumnKind::Date},       {"boolean", ColumnKind::Boolean}, {"counter", ColumnKind::Counter}};
    for (const auto &[word, k] : words)
        if (w == QLatin1StringView(word)) {
            kind = k;
            return true;
        }
    return false;
}

} // namespace

const ColumnDef *TableDef::column(const QString &name) const
{
    for (const ColumnDef &c : columns)
        if (c.name.compare(name, Qt::CaseInsensitive) == 0)
            return &c;
    return nullptr;
}

const SchemaCatalog &SchemaCatalog::instance()
{
    static const SchemaCatalog catalog = parse(QString::fromUtf8(kSchemaText));
    return catalog;
}

SchemaCatalog SchemaCatalog::parse(const QString &text)
{
    SchemaCatalog cat;
    std::vector<TableDef> current;  // one table, or several for a name with a range
    auto flush = [&] {
        for (TableDef &t : current)
            cat.tables_.push_back(std::move(t));
        current.clear();
    };
    const QStringList lines = text.split(u'\n');
    for (int n = 0; n < lines.size(); ++n) {
        QString line = lines[n];
        const qsizetype hash = line.indexOf(u'#');
        if (hash >= 0)
            line.truncate(hash);
        const QStringList words = line.simplified().split(u' ', Qt::SkipEmptyParts);
        if (words.isEmpty())
            continue;
        if (words[0] == u"table") {
            flush();
            if (words.size() != 2 && !(words.size() == 4 && words[2] == u"key"))
                throw std::runtime_error("schema: linha de tabela malformada: " + std::to_string(n + 1));
            for (const QString &name : expand(words[1], n + 1)) {
                TableDef t;
                t.name = name;
                if (words.size() == 4)
                    t.key = words[3].split(u',');
                current.push_back(std::move(t));
            }
            continue;
        }
        // NAME ... KIND [default VALUE]
        QStringList names = words;
        QString defaultValue;
        if (names.size() >= 4 && names[names.size() - 2] == u"default") {
            defaultValue = names.last();
            names.resize(names.size() - 2);
        }
        ColumnKind kind;
        if (current.empty() || names.size() < 2 || !kindFromWord(names.last(), kind))
            throw std::runtime_error("schema: linha de colunas malformada: " + std::to_string(n + 1));
        for (int w = 0; w + 1 < names.size(); ++w)
            for (const QString &name : expand(names[w], n + 1))
                for (TableDef &t : current) {
                    if (t.column(name))
                        throw std::runtime_error("schema: coluna repetida " + name.toStdString());
                    t.columns.push_back({name, kind, defaultValue});
                }
    }
    flush();
    for (const TableDef &t : cat.tables_)
        for (const QString &k : t.key)
            if (!t.column(k))
                throw std::runtime_error("schema: chave desconhecida " + t.name.toStdString() + "." + k.toStdString());
    return cat;
}

const TableDef *SchemaCatalog::table(const QString &name) const
{
    for (const TableDef &t : tables_)
        if (t.name.compare(name, Qt::CaseInsensitive) == 0)
            return &t;
    return nullptr;
}

QString SchemaCatalog::declaredType(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::Text: return QStringLiteral("TEXT");
    case ColumnKind::Number: return QStringLiteral("NUMBER");
    case ColumnKind::Money: return QStringLiteral("REAL");
    case ColumnKind::Date: return QStringLiteral("DATETEXT");
    case ColumnKind::Boolean: return QStringLiteral("BOOLEAN");
    case ColumnKind::Counter: return QStringLiteral("INTEGER");
    }
    return QStringLiteral("TEXT");
}

ColumnKind SchemaCatalog::kindOfDeclaredType(const char *declType, bool *known)
{
    if (known)
        *known = true;
    if (declType) {
        const QLatin1StringView t(declType);
        if (t.compare(QLatin1StringView("TEXT"), Qt::CaseInsensitive) == 0)
            return ColumnKind::Text;
        if (t.compare(QLatin1StringView("NUMBER"), Qt::CaseInsensitive) == 0)
            return ColumnKind::Number;
        if (t.compare(QLatin1StringView("REAL"), Qt::CaseInsensitive) == 0)
            return ColumnKind::Money;
        if (t.compare(QLatin1StringView("DATETEXT"), Qt::CaseInsensitive) == 0)
            return ColumnKind::Date;
        if (t.compare(QLatin1StringView("BOOLEAN"), Qt::CaseInsensitive) == 0)
            return ColumnKind::Boolean;
        if (t.compare(QLatin1StringView("INTEGER"), Qt::CaseInsensitive) == 0)
            return ColumnKind::Counter;
    }
    if (known)
        *known = false;
    return ColumnKind::Text;
}

QStringList SchemaCatalog::createStatements() const
{
    QStringList out;
    for (const TableDef &t : tables_) {
        QStringList cols;
        for (const ColumnDef &c : t.columns) {
            QString def = c.name + u' ' + declaredType(c.kind);
            // Text compares without regard to case, as the original engine did.
            if (c.kind == ColumnKind::Text)
                def += QStringLiteral(" COLLATE NOCASE");
            else if (c.kind == ColumnKind::Counter)
                def += QStringLiteral(" PRIMARY KEY AUTOINCREMENT");
            if (!c.defaultValue.isEmpty())
                def += QStringLiteral(" DEFAULT ") + c.defaultValue;
            else if (c.kind != ColumnKind::Date && c.kind != ColumnKind::Text && c.kind != ColumnKind::Counter)
                def += QStringLiteral(" DEFAULT 0");  // numbers and Yes/No start at 0, as in the original files
            cols << def;
        }
        out << QStringLiteral("CREATE TABLE %1 (%2)").arg(t.name, cols.join(QStringLiteral(", ")));
        if (!t.key.isEmpty())
            out << QStringLiteral("CREATE INDEX %1_key ON %1 (%2)").arg(t.name, t.key.join(u','));
    }
    return out;
}
