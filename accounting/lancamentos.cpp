#include "accounting/lancamentos.h"

#include "core/errors.h"

#include <QRegularExpression>

QString tabelaDoAno(const QString &ano) { return QStringLiteral("Mov") + ano.right(2); }

bool existeTabelaAno(Connection &cn, const QString &tabela)
{
    // The store has no catalogue query of the system's dialect: a count on
    // the table tells, and only the engine's "no such table" means absent.
    try {
        cn.Execute(QStringLiteral("SELECT Count(codauto) As I FROM ") + tabela);
        return true;
    } catch (const DatabaseError &e) {
        if (QString::fromUtf8(e.what()).contains(QLatin1String("no such table")))
            return false;
        throw;
    }
}

QString semTabelaDoAno(const QString &ano)
{
    return QStringLiteral("Não há tabela de lançamentos do ano %1 (%2) neste condomínio: os lançamentos vão de 2000 a 2008 !")
        .arg(ano, tabelaDoAno(ano));
}

bool anoComPrevisao(const QString &ano)
{
    bool ok = false;
    const int a = ano.trimmed().toInt(&ok);
    return ok && ano.trimmed().size() == 4 && a >= 2002 && a <= 2008;
}

bool valorDigitado(const QString &texto, double &valor)
{
    static const QRegularExpression forma(QStringLiteral("^-?(\\d{1,3}(\\.\\d{3})+|\\d+)(,\\d{1,2})?$"));
    const QString t = texto.trimmed();
    if (t.isEmpty()) {
        valor = 0;
        return true;
    }
    if (!forma.match(t).hasMatch())
        return false;
    QString simples = t;
    simples.remove(u'.').replace(u',', u'.');
    bool ok = false;
    const double v = simples.toDouble(&ok);  // QString::toDouble reads the C form, whatever the locale
    if (ok)
        valor = v;
    return ok;
}
