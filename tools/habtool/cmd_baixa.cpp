// habtool baixa FILE NUMERO dd/mm/yyyy USUARIO [--sim]: settles one receipt.
// habtool baixa FILE NUMERO --desfaz CODIGO [--sim]: clears the date received
// and saves the receipt as that user, which undoes the settlement for code 731.
#include "billing/baixa.h"
#include "billing/direitos.h"
#include "core/conversions.h"
#include "tools/habtool/billing_cmd.h"
#include "tools/habtool/habtool.h"

static void mostraErros(const std::vector<ErroGravacao> &erros)
{
    for (const ErroGravacao &e : erros)
        err(e.tipo + QStringLiteral(": ") + e.mensagem);
}

static QString nomeDoUsuario(int codigo)
{
    Connection sistema;
    sistema.Open(session.conSistema);
    QString nome;
    {
        Recordset rs = sistema.Execute(QStringLiteral("SELECT nome FROM Usuarios WHERE codigo = ") + QString::number(codigo));
        if (!rs.eof())
            nome = rs[QStringLiteral("nome")].text();
    }
    sistema.Close();
    return nome;
}

static int cmdBaixa(const QStringList &argumentos)
{
    QStringList args = argumentos;
    const bool sim = tiraSim(args);
    if (args.size() != 4)
        return 2;
    int numeroLido = 0, codigo = 0;
    QDate data;
    const bool desfaz = args[2] == QLatin1String("--desfaz");
    // The empty date goes to the routine, which says what it lacks.
    const bool dataVazia = args[2].isEmpty() || args[2] == kEmptyDate;
    if (!bancoPresente(args[0]) || !leInteiro(QStringLiteral("NUMERO"), args[1], 0, 999999, numeroLido) ||
        (desfaz ? !leInteiro(QStringLiteral("CODIGO"), args[3], 0, 999, codigo)
                : (!(dataVazia || leData(QStringLiteral("data"), args[2], data)) ||
                   !leUsuario(QStringLiteral("USUARIO"), args[3]))))
        return kArgumentoInvalido;
    ArquivoCondominio arq(args[0], sim);
    const QString numero = ZeroEsq(args[1], 6);
    ReciboEditado r;
    if (!leReciboEditado(arq.con, numero, &r)) {
        MsgBox(QStringLiteral("Recibo não encontrado, pesquise ou tente novamente !"), vbExclamation,
               QStringLiteral("Atenção..."));
        return 1;
    }
    if (desfaz) {
        session.codUsuario = int16_t(codigo);
        session.usuario = nomeDoUsuario(codigo);
        if (!leUsuario(QStringLiteral("nome do usuário %1").arg(codigo), session.usuario))
            return 1;
        r.drecbto = kEmptyDate;
        const Alteracao a = alteraRecibo(arq.con, r, session.usuario, codigo);
        mostraErros(a.erros);
        out(a.baixaDesfeita ? QStringLiteral("desfeita") : QStringLiteral("mantida"));
        return a.gravado ? 0 : 1;
    }
    session.usuario = args[3];
    const Baixa b = baixaRecibo(arq.con, numero, r.drecbto, args[2], r.tipcob, session.usuario);
    mostraErros(b.erros);
    switch (b.resultado) {
    case ResultadoBaixa::Baixado:
        out(QStringLiteral("valido %1").arg(b.valido));
        return 0;
    case ResultadoBaixa::SemMudanca:
        out(QStringLiteral("sem mudança"));
        return 0;
    default:
        return 1;
    }
}

static const bool registrado = registerCommand("baixa", "FILE NUMERO dd/mm/yyyy USUARIO | FILE NUMERO --desfaz CODIGO [--sim]",
                                               "baixa de um recibo, ou desfaz a baixa", cmdBaixa);
