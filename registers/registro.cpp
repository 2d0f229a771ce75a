#include "registers/registro.h"

#include "core/conversions.h"
#include "core/val.h"

QString montaSql(const QString &modelo, const QHash<QString, QString> &valores)
{
    QString sql;
    sql.reserve(modelo.size() + 64);
    qsizetype i = 0;
    while (i < modelo.size()) {
        const qsizetype abre = modelo.indexOf(u'{', i);
        if (abre < 0) {
            sql += QStringView(modelo).mid(i);
            break;
        }
        const qsizetype fecha = modelo.indexOf(u'}', abre);
        if (fecha < 0)
            throw RunFailure(QStringLiteral("Comando sem fim de nome: ") + modelo);
        sql += QStringView(modelo).mid(i, abre - i);
        const QString nome = modelo.mid(abre + 1, fecha - abre - 1);
        const auto valor = valores.constFind(nome);
        if (valor == valores.constEnd())
            throw RunFailure(QStringLiteral("Comando sem o valor de ") + nome + QStringLiteral(": ") + modelo);
        sql += *valor;
        i = fecha + 1;
    }
    return sql;
}

QStringList nomesDoModelo(const QString &modelo)
{
    QStringList nomes;
    qsizetype i = 0;
    while ((i = modelo.indexOf(u'{', i)) >= 0) {
        const qsizetype fecha = modelo.indexOf(u'}', i);
        if (fecha < 0)
            break;
        const QString nome = modelo.mid(i + 1, fecha - i - 1);
        if (!nomes.contains(nome))
            nomes << nome;
        i = fecha + 1;
    }
    return nomes;
}

QString normalizaChave(const Registro &registro, const QString &mascarado)
{
    const QString puro = bareText(mascarado).trimmed();
    if (puro.isEmpty())
        return QString();
    if (registro.chave == Chave::Numero)
        return QString::number(qint64(val(puro)));
    return registro.largura > 0 && puro.size() <= registro.largura ? ZeroEsq(puro, registro.largura) : puro;
}

QString normalizaGrupo(const QString &mascarado)
{
    const QString bare = mascarado.left(4);
    if (bare.size() == 4 && !bare.contains(u'_'))
        return bare;
    if (bare.mid(2).remove(u'_').isEmpty() && !bare.left(2).contains(u'_'))
        return bare.left(2);
    return QString();
}
