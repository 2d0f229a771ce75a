// habtool sql FILE: runs statements of the system's dialect, one per line of
// standard input, on FILE through the data store, and prints their results
// (the format is in docs/habtool.md).
#include "tools/habtool/habtool.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/session.h"

#include <QTextStream>

namespace {

QString escaped(const QString &text)
{
    QString out;
    out.reserve(text.size());
    for (QChar c : text) {
        if (c == u'\t')
            out += QStringLiteral("\\t");
        else if (c == u'\r')
            out += QStringLiteral("\\r");
        else if (c == u'\n')
            out += QStringLiteral("\\n");
        else
            out += c;
    }
    return out;
}

// Plain form with a point: "12.5", "3", "-0.01".
QString pointed(QString text) { return text.replace(u',', u'.'); }

QString cellText(const Field &f)
{
    if (f.isNull())
        return QStringLiteral("NULL");
    const QVariant &v = f.value();
    switch (v.typeId()) {
    case QMetaType::Bool:
        return v.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::QDate:
        return v.toDate().toString(QStringLiteral("dd/MM/yyyy"));
    case QMetaType::LongLong:
        return QString::number(v.toLongLong());
    case QMetaType::Double:
        if (f.kind() == ColumnKind::Money)
            return pointed(moneyText(Money::fromDouble(v.toDouble())));
        return pointed(doubleText(v.toDouble()));
    default:
        return escaped(v.toString());
    }
}

int cmdSql(const QStringList &args)
{
    if (args.size() != 1) {
        err(QStringLiteral("uso: habtool sql ARQUIVO < instruções"));
        return 2;
    }
    if (!bancoPresente(args[0]))
        return kArgumentoInvalido;
    Connection con;
    con.Open(kConnectionPrefix + args[0] + QStringLiteral(";Jet OLEDB:Database Password=;"));
    QTextStream in(stdin);
    in.setEncoding(QStringConverter::Utf8);
    bool failed = false;
    QString line;
    while (in.readLineInto(&line)) {
        const QString statement = line.trimmed();
        if (statement.isEmpty() || statement.startsWith(QStringLiteral("--")))
            continue;
        try {
            long affected = 0;
            Recordset rs = con.Execute(statement, &affected);
            if (rs.State() == 1) {
                const QStringList names = rs.columnNames();
                out(names.join(u'\t'));
                while (!rs.eof()) {
                    QStringList cells;
                    for (int c = 0; c < names.size(); ++c)
                        cells << cellText(rs.fieldAt(c));
                    out(cells.join(u'\t'));
                    rs.moveNext();
                }
            } else {
                out(QStringLiteral("OK %1").arg(affected));
            }
        } catch (const DatabaseError &e) {
            out(QStringLiteral("ERROR ") + e.message());
            failed = true;
        } catch (const std::exception &e) {
            // A value read back that the program cannot hold (money beyond
            // the currency's range) fails this statement only.
            out(QStringLiteral("ERROR ") + QString::fromUtf8(e.what()));
            failed = true;
        }
        std::fflush(stdout);
    }
    con.Close();
    return failed ? 1 : 0;
}

const bool registered = registerCommand("sql", "ARQUIVO  < instruções",
                                        "executa instruções no dialeto do sistema, uma por linha", cmdSql);

} // namespace
