#include "billing/emissao.h"

#include "billing/recibo.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/transaction.h"

#include <QStringBuilder>
#include <algorithm>
#include <cstdint>
#include <limits>
#include <QHash>

SelecaoEmissao montaSelecao(const QString &fsempr, QChar fordem, bool fhonor, bool temEventoFixo,
                            const QString &fnemis, const QDate &fdemis)
{
    SelecaoEmissao s;
    if (fsempr == QLatin1String("T")) {
        s.lista = QStringLiteral("SELECT codauto,codigo,nome,tipcob,situ,honor,refer,diavcto,nemis,demis,nrecibo "
                                 "FROM Aptos WHERE situ <> 'I' ");
        s.contagem = QStringLiteral("SELECT Count(codigo) as I FROM Aptos WHERE situ <> 'I' ");
    } else {
        s.lista = QStringLiteral("SELECT codauto,codigo,nome,tipcob,situ,honor,refer,diavcto FROM Aptos WHERE situ = '")
            + fsempr + QStringLiteral("' ");
        s.contagem = QStringLiteral("SELECT Count(codigo) as I FROM Aptos WHERE  situ = '") + fsempr
            + QStringLiteral("' ");
    }
    if (fhonor) {
        QString condicao;
        if (temEventoFixo)
            condicao += QStringLiteral(" AND (honor > 0 or honcb > 0)");
        condicao += QStringLiteral(" AND not diavcto = '' AND not tipcob = ''");
        condicao += QStringLiteral(" AND not(nemis = '") + fnemis + QStringLiteral("' AND demis = #")
            + formatDate(fdemis, QStringLiteral("mm/dd/yyyy")) + QStringLiteral("#)");
        s.lista += condicao;
        s.contagem += condicao;
    }
    s.lista += fordem == QLatin1Char('A') ? QStringLiteral(" ORDER BY nome") : QStringLiteral(" ORDER BY codigo");
    return s;
}

QDate dataVencimento(int dia, const QString &fmvcto)
{
    // No month has a day above 31, so a larger day walks down to 31; starting
    // there keeps a day of three digits from overflowing the two-digit pad.
    for (int d = std::min(dia, 31); d >= 1; --d) {
        const QDate data = dateFromText(ZeroEsq(QString::number(d), 2) + QLatin1Char('/') + fmvcto);
        if (data.isValid())
            return data;
    }
    // A day of 0 or less never becomes a date; the first of the month stands in.
    return dateFromText(QStringLiteral("01/") + fmvcto);
}

QDate dataVencimento(const Field &diavcto, const QString &fmvcto)
{
    if (diavcto.isNull())
        return dateFromText(QStringLiteral("01/") + fmvcto);
    return dataVencimento(int(diavcto.toInt()), fmvcto);
}

namespace {

// The settings that the run reads from Parametros.
struct Mes {
    QString fsempr, fordem, fnemis, fnreci, fmvcto;
    QDate fdemis;
    bool fhonor = false;
    std::array<QString, 4> fevnt, fcpev;
    std::array<float, 4> fvlev{};
};

Mes leMes(Connection &con)
{
    Mes m;
    Recordset rs = con.Execute(QStringLiteral("SELECT * FROM Parametros Where Codigo = 1"));
    if (rs.eof())
        return m;
    m.fsempr = rs[QStringLiteral("fsempr")].text();
    m.fordem = rs[QStringLiteral("fordem")].text();
    m.fnemis = rs[QStringLiteral("fnemis")].text();
    m.fnreci = rs[QStringLiteral("Fnreci")].text();
    m.fhonor = rs[QStringLiteral("fhonor")].toBool();
    const Field &demis = rs[QStringLiteral("fdemis")];
    m.fdemis = demis.kind() == ColumnKind::Date ? demis.toDate() : dateFromText(demis.text());
    const Field &mvcto = rs[QStringLiteral("fmvcto")];
    if (mvcto.kind() == ColumnKind::Date)
        m.fmvcto = mvcto.isNull() ? QString() : formatDate(mvcto.toDate(), QStringLiteral("mm/yyyy"));
    else
        m.fmvcto = mvcto.text().trimmed();
    for (int i = 0; i < 4; ++i) {
        m.fevnt[size_t(i)] = rs[QStringLiteral("fevnt%1").arg(i + 1)].text();
        m.fcpev[size_t(i)] = rs[QStringLiteral("fcpev%1").arg(i + 1)].text();
        m.fvlev[size_t(i)] = float(rs[QStringLiteral("fvlev%1").arg(i + 1)].toDouble());
    }
    return m;
}

bool eventoFixoValido(const Mes &m, int i)
{
    return m.fvlev[size_t(i)] != 0 && val(m.fevnt[size_t(i)]) > 0;
}

// Columns and values of one INSERT, slot by slot.
struct Insercao {
    QString colunas, valores;
    int slot = 0;

    void item(const QString &codigo, const QString &comp, const QString &valor)
    {
        const QString n = QString::number(slot);
        colunas += QLatin1String("item") % n % QLatin1String(",comp") % n % QLatin1String(",refer") % n
            % QLatin1String(",valor") % n % QLatin1Char(',');
        valores += QLatin1Char('\'') % codigo % QStringLiteral("','") % comp % QStringLiteral("','0','") % valor
            % QStringLiteral("',");
        ++slot;
    }
};

// Texts that repeat from unit to unit, made once per run: the due date by
// the unit's due day (a month has 31 of them at most) and the amounts.
class Memo {
public:
    explicit Memo(const QString &fmvcto) : fmvcto_(fmvcto) {}

    QString vencimento(const Field &diavcto)
    {
        const qint64 dia = diavcto.isNull() ? std::numeric_limits<qint64>::min() : diavcto.toInt();
        auto it = vencimentos_.find(dia);
        if (it == vencimentos_.end())
            it = vencimentos_.insert(dia, textoData(dataVencimento(diavcto, fmvcto_)));
        return *it;
    }

    QString valor(Money v)
    {
        auto it = valores_.find(v.units());
        if (it == valores_.end()) {
            if (valores_.size() >= 1024)
                valores_.clear();
            it = valores_.insert(v.units(), textoValor(v));
        }
        return *it;
    }

private:
    QString fmvcto_;
    QHash<qint64, QString> vencimentos_, valores_;
};

} // namespace

ResultadoEmissao emissaoAutomatica(Connection &con, const ParametrosEmissao &form, const ProgressFn &progresso)
{
    ResultadoEmissao r;
    const Mes m = leMes(con);
    QString numero = primeiroNumero(m.fnreci);

    // A month that is not a month would walk the due day back for ever, and
    // an emission without a date cannot be told from the next one.
    if (!dateFromText(QStringLiteral("01/") + m.fmvcto).isValid() || !m.fdemis.isValid()) {
        MsgBox(QStringLiteral("Informe a data da emissão e o mês/ano de vencimento !"), vbExclamation,
               QStringLiteral("Atenção..."));
        return r;
    }

    bool temEventoFixo = false;
    for (int i = 0; i < 4; ++i)
        temEventoFixo = temEventoFixo || eventoFixoValido(m, i);
    const SelecaoEmissao sel = montaSelecao(m.fsempr, m.fordem.isEmpty() ? QLatin1Char('N') : m.fordem.at(0),
                                            m.fhonor, temEventoFixo, m.fnemis, m.fdemis);

    qint64 lidos = 0;
    {
        Recordset c = con.Execute(sel.contagem);
        lidos = c.eof() ? 0 : c[QStringLiteral("I")].toInt();
    }
    if (lidos > INT16_MAX)
        throw RunFailure(QStringLiteral("Estouro de capacidade"));
    const auto contagem = int16_t(lidos);

    Recordset lista;
    lista.Open(sel.lista, con, 1, 2);
    if (lista.eof()) {
        MsgBox(kMsgNadaAEmitir, vbExclamation, QStringLiteral("Atenção..."));
        return r;
    }
    if (MsgBox(QStringLiteral("Foram selecionados") + strText(contagem)
                   + QStringLiteral(" recibos para esta condição, inicia a emissão ?"),
               vbYesNo + vbQuestion, QStringLiteral("Confirmação.."))
        != vbYes)
        return r;
    r.iniciada = true;
    Progress barra;
    barra.max = std::max<int>(contagem, 0);
    if (progresso)
        progresso(barra);

    const QString demis = textoData(m.fdemis);
    Memo memo(m.fmvcto);
    while (!lista.eof()) {
        Recordset ap = con.Execute(
            QStringLiteral("SELECT codauto,codigo,nome,tipcob,tipbolbco,situ,honor,honcb,honfr,refer,diavcto "
                           "FROM Aptos WHERE codigo = '")
            + lista[QStringLiteral("codigo")].text() + QStringLiteral("'"));
        if (ap.eof()) {
            lista.moveNext();
            r.interrompida = true;
            break;
        }
        const QString vencto = memo.vencimento(ap[QStringLiteral("diavcto")]);
        const QString apto = ZeroEsq(ap[QStringLiteral("codigo")].text(), 6);
        const QString situ = ap[QStringLiteral("situ")].text();
        const Money honor = ap[QStringLiteral("honor")].toMoney();
        const Money honcb = ap[QStringLiteral("honcb")].toMoney();
        const Money honfr = ap[QStringLiteral("honfr")].toMoney();
        const QString tipcob =
            ap[QStringLiteral("tipcob")].isNull() ? QStringLiteral("1") : ap[QStringLiteral("tipcob")].text();
        const QString tipbolbco = ap[QStringLiteral("tipbolbco")].text();
        ap.Close();  // read; the writes below need no open statement
        TotaisRecibo t;

        // The unit's stamp and its receipt are one step: a kill between them
        // leaves neither.
        Transaction par(con);
        con.Execute(QStringLiteral("UPDATE aptos SET nemis = '") % m.fnemis % QStringLiteral("',")
                    % QStringLiteral("demis = '") % demis % QStringLiteral("',") % QStringLiteral("nrecibo = '")
                    % numero % QStringLiteral("'") % QStringLiteral(" Where codigo = '") % apto
                    % QStringLiteral("'"));

        Insercao ins;
        // Fee items go to vtoth whatever their event's type.
        auto taxa = [&](const QString &evento, const QString &comp, Money valor) {
            if (val(evento) > 0 && valor > Money()) {
                ins.item(ZeroEsq(evento, 3), comp.trimmed(), memo.valor(valor));
                t.vtotal += valor;
                t.vtoth += valor;
            }
        };
        taxa(form.fEvTc, form.fCpTc, honor);
        taxa(form.fEvCb, form.fCpCb, honcb);
        taxa(form.fEvFr, form.fCpfr, honfr);
        for (int i = 0; i < 4; ++i) {
            if (!eventoFixoValido(m, i))
                continue;
            const float v = m.fvlev[size_t(i)];
            ins.item(m.fevnt[size_t(i)], m.fcpev[size_t(i)], singleText(v));
            somaItem(con, t, m.fevnt[size_t(i)], Money::fromDouble(double(v)));
        }

        con.Execute(QStringLiteral("INSERT INTO Recibos (codigo,codap,nemis,demis,dvencto,")
                    % QStringLiteral("Tipcob,Tipbolbco,situacao,") % ins.colunas
                    % QStringLiteral("vtoth,vtotr,vtott,vtotd,vtotal)") % QStringLiteral(" VALUES('") % numero
                    % QStringLiteral("','") % apto % QStringLiteral("',\"") % m.fnemis % QStringLiteral("\",'")
                    % demis % QStringLiteral("','") % vencto % QStringLiteral("','") % tipcob
                    % QStringLiteral("','") % tipbolbco % QStringLiteral("','") % situ % QStringLiteral("',")
                    % ins.valores % QLatin1Char('\'') % memo.valor(t.vtoth) % QStringLiteral("','")
                    % memo.valor(t.vtotr) % QStringLiteral("','") % memo.valor(t.vtott) % QStringLiteral("','")
                    % memo.valor(t.vtotd) % QStringLiteral("','") % memo.valor(t.vtotal) % QStringLiteral("')"));
        par.commit();
        ++r.emitidos;
        if (progresso) {
            barra.value = std::min(r.emitidos, barra.max);
            progresso(barra);
        }
        numero = proximoNumero(numero);
        lista.moveNext();
    }
    r.fnreci = gravaUltimoNumero(con, numero);
    return r;
}
