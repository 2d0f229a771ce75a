// habtool eventtot FILE "CLAUSE": fills Eventtot and lists it.
#include "billing/eventtot.h"
#include "tools/habtool/billing_cmd.h"
#include "tools/habtool/habtool.h"

static int cmdEventtot(const QStringList &argumentos)
{
    QStringList args = argumentos;
    const bool sim = tiraSim(args);
    if (args.size() != 2)
        return 2;
    if (!bancoPresente(args[0]))
        return kArgumentoInvalido;
    ArquivoCondominio arq(args[0], sim);
    encheEventtot(arq.con, args[1]);
    Recordset rs = arq.con.Execute(QStringLiteral("SELECT codigo,nome,tipo,valortot FROM Eventtot ORDER BY codigo"));
    while (!rs.eof()) {
        out(rs[QStringLiteral("codigo")].text() + QLatin1Char('\t') + rs[QStringLiteral("nome")].text()
            + QLatin1Char('\t') + rs[QStringLiteral("tipo")].text() + QLatin1Char('\t')
            + QString::number(rs[QStringLiteral("valortot")].toMoney().toDouble(), 'f', 2));
        rs.moveNext();
    }
    return 0;
}

static const bool registrado =
    registerCommand("eventtot", "FILE \"CLAUSE\"", "totais por evento dos recibos da cláusula", cmdEventtot);
