// Safra's records. A number shorter than 9 characters makes the detail
// shorter by as much: nothing fills the gap.
#include "banks/remessa.h"

#include "core/conversions.h"

namespace {
QString blanks(int n) { return QString(n, u' '); }
QString zeros(int n) { return QString(n, u'0'); }
QString ddmmyy(const QDate &date) { return formatDate(date, QStringLiteral("ddmmyy")); }
} // namespace

QString header422(const DadosRemessa &d, int16_t sequencia)
{
    const ParametrosBanco &p = d.parametros;
    const QString record = QStringLiteral("01REMESSA01COBRANCA       ") + QStringLiteral("0") + p.agencia
                           + ZeroEsq(digitos(p.cedente), 9) + blanks(6) + campoTexto(d.cedenteNome, 30)
                           + QStringLiteral("422BANCO SAFRA    ") + ddmmyy(d.dataGeracao) + blanks(294)
                           + sequenciaRemessa(sequencia);
    return SemAcento(record);
}

QString detalhe422(const DadosRemessa &d, const ReciboBanco &r, const Boleto &b, const Sacado &s, int16_t sequencia)
{
    const ParametrosBanco &p = d.parametros;
    // "02" beside a CPF and "01" without one, as the bank has always received them.
    const QString tipoSacado = s.cpfVazio ? QStringLiteral("01") : QStringLiteral("02");
    const QString record =
        empresaRemessa(d) + QStringLiteral("0") + p.agencia + ZeroEsq(digitos(p.cedente), 9) + blanks(6) + blanks(25)
        + b.nrbco + blanks(30) + QStringLiteral("0") + QStringLiteral("00 00101") + r.codigo + blanks(4)
        + ddmmyy(r.dvencto) + valorRemessa(r.vtotal) + QStringLiteral("422") + QStringLiteral("0") + p.agencia
        + especieRemessa(d.especie) + QStringLiteral("N") + ddmmyy(d.dataGeracao) + instrucaoRemessa(d.instrucao1)
        + instrucaoRemessa(d.instrucao2) + zeros(13) + QStringLiteral("000000") + zeros(39) + tipoSacado
        + numeroSacado(s, 14) + campoTexto(s.nome, 40) + enderecoRemessa(s) + campoTexto(s.bairro, 10)
        + QStringLiteral("  ") + cepRemessa(s.cep) + campoTexto(s.cidade, 15) + campoTexto(s.uf, 2) + blanks(37)
        + QStringLiteral("422999") + sequenciaRemessa(sequencia);
    return SemAcento(record);
}
