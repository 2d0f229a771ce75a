#include "billing/recibo.h"

#include "core/conversions.h"
#include "core/datastore.h"

#include <QLocale>
#include <cmath>
#include <cstdint>

void somaItem(Connection &con, TotaisRecibo &totais, const QString &codigoEvento, Money valor)
{
    totais.vtotal += valor;
    Recordset rs = con.Execute(QStringLiteral("SELECT tipo FROM eventos WHERE codigo = '") + codigoEvento
                               + QStringLiteral("'"));
    if (rs.eof())
        return;  // a deleted event: vtotal only
    const QString tipo = rs[QStringLiteral("tipo")].text();
    if (tipo == QLatin1String("H"))
        totais.vtoth += valor;
    else if (tipo == QLatin1String("R"))
        totais.vtotr += valor;
    else if (tipo == QLatin1String("T"))
        totais.vtott += valor;
    else
        totais.vtotd += valor;
}

TotaisRecibo calculaTotais(Connection &con, const std::vector<ItemRecibo> &itens)
{
    TotaisRecibo t;
    for (const ItemRecibo &it : itens)
        somaItem(con, t, it.item, it.valor);
    return t;
}

Money valorComReferencia(double referencia, Money valorUnitario)
{
    return Money::fromDouble(Arredonda(valorUnitario * referencia, 2));
}

// Receipt numbers are padded to six digits but never cut: after 999999 the
// text grows to seven digits, and the system does not guard it.
QString proximoNumero(const QString &numero)
{
    return padZeros(doubleText(val(numero) + 1), 6);
}

QString sqlGravaFnreci(const QString &numero)
{
    return QStringLiteral("UPDATE Parametros Set fnreci = '") + numero + QStringLiteral("' Where codigo = 1");
}

QString gravaUltimoNumero(Connection &con, const QString &atual)
{
    if (!(val(atual) > 1))
        return QString();
    const QString numero = padZeros(doubleText(val(atual) - 1), 6);
    con.Execute(sqlGravaFnreci(numero));
    return numero;
}

qint32 carimboValido(const QString &codigo, const QDate &drecbto, const QString &usuario)
{
    // The accumulator of the amount is set to 0 just before the stamp is made,
    // so its part is always 0. It stays in the sum as the system has it.
    const Money acumulador;
    const auto a = int16_t(std::lrint(acumulador.toDouble() * 100));
    const auto b = qint32(std::lrint(val(codigo) + double(dateToDays(drecbto)) + double(a)));
    qint32 c = 0;
    for (const QChar ch : usuario)
        c += ch.unicode();
    return b + c;
}

QString textoData(const QDate &data)
{
    return data.isValid() ? formatDate(data, QStringLiteral("dd/mm/yyyy")) : QString();
}

QString textoTotalInsert(Money valor)
{
    return formatMoney(valor, QStringLiteral("#######0.00"));
}

QString textoValor(Money valor)
{
    return moneyText(valor);
}

QString sqlItensTotais(const std::vector<ItemRecibo> &itens, const TotaisRecibo &t)
{
    QString s;
    for (int i = 0; i < kSlotsRecibo; ++i) {
        const QString n = QString::number(i);
        if (size_t(i) < itens.size()) {
            const ItemRecibo &it = itens[size_t(i)];
            s += QStringLiteral("item") + n + QStringLiteral(" = '") + ZeroEsq(it.item, 3) + QStringLiteral("',");
            s += QStringLiteral("comp") + n + QStringLiteral(" = \"") + it.comp + QStringLiteral("\",");
            s += QStringLiteral("refer") + n + QStringLiteral(" = '") + doubleText(it.refer) + QStringLiteral("',");
            s += QStringLiteral("valor") + n + QStringLiteral(" = '") + textoValor(it.valor) + QStringLiteral("',");
        } else {
            s += QStringLiteral("item") + n + QStringLiteral(" = ' ',");
            s += QStringLiteral("comp") + n + QStringLiteral(" = ' ',");
            s += QStringLiteral("refer") + n + QStringLiteral(" = 0,");
            s += QStringLiteral("valor") + n + QStringLiteral(" = 0,");
        }
    }
    s += QStringLiteral("vtoth = '") + textoValor(t.vtoth) + QStringLiteral("',");
    s += QStringLiteral("vtotr = '") + textoValor(t.vtotr) + QStringLiteral("',");
    s += QStringLiteral("vtott = '") + textoValor(t.vtott) + QStringLiteral("',");
    s += QStringLiteral("vtotd = '") + textoValor(t.vtotd) + QStringLiteral("',");
    s += QStringLiteral("vtotal = '") + textoValor(t.vtotal) + QStringLiteral("'");
    return s;
}

bool numeroDaCelula(const QString &celula, double *numero)
{
    bool ok = false;
    const double v = QLocale(QLocale::Portuguese, QLocale::Brazil).toDouble(celula.trimmed(), &ok);
    if (ok && numero)
        *numero = v;
    return ok;
}

std::vector<ItemRecibo> ajustaGrade(const std::vector<LinhaGrade> &linhas)
{
    std::vector<ItemRecibo> itens;
    for (const LinhaGrade &l : linhas) {
        double valor = 0;
        if (val(l.cod) == 0 || !numeroDaCelula(l.valor, &valor) || valor == 0)
            continue;
        ItemRecibo it;
        it.item = l.cod;
        it.comp = l.comp;
        double ref = 0;
        it.refer = numeroDaCelula(l.ref, &ref) ? ref : 0;
        it.valor = Money::fromDouble(valor);
        itens.push_back(it);
    }
    return itens;
}

std::vector<ErroGravacao> confereRecibo(size_t itens, const TotaisRecibo &totais, const QString &dvencto,
                                        const QString &tipcob)
{
    std::vector<ErroGravacao> erros;
    if (itens == 0)
        erros.push_back({kErroFatal, kMsgSemItens});
    else if (totais.vtotal.isZero())
        erros.push_back({kErroFatal, kMsgSemValor});
    if (dvencto == kEmptyDate || dvencto.trimmed().isEmpty())
        erros.push_back({kErroFatal, kMsgSemVencimento});
    if (tipcob.trimmed().isEmpty())
        erros.push_back({kErroFatal, kMsgSemCobranca});
    return erros;
}
