// Itaú's records: header, the detail of most wallets, and the detail of
// wallets 174 and 175, which carries the bank's data first.
#include "banks/remessa.h"

#include "core/conversions.h"

namespace {
const QString kInicioHeader = QStringLiteral("01REMESSA01COBRANCA       ");

QString blanks(int n) { return QString(n, u' '); }
QString zeros(int n) { return QString(n, u'0'); }
QString ddmmyy(const QDate &date) { return formatDate(date, QStringLiteral("ddmmyy")); }
} // namespace

QString header341(const DadosRemessa &d, int16_t sequencia)
{
    const ParametrosBanco &p = d.parametros;
    const QString record = kInicioHeader + p.agencia + QStringLiteral("00") + ZeroEsq(digitos(p.cedente), 6)
                           + blanks(8) + campoTexto(d.cedenteNome, 30) + QStringLiteral("341BANCO ITAU SA  ")
                           + ddmmyy(d.dataGeracao) + blanks(294) + sequenciaRemessa(sequencia);
    return SemAcento(record);
}

QString detalhe341(const DadosRemessa &d, const ReciboBanco &r, const Boleto &b, const Sacado &s, int16_t sequencia)
{
    const ParametrosBanco &p = d.parametros;
    const QString carteira = carteiraRemessa(p);
    const QString conta = ZeroEsq(digitos(p.cedente), 6);
    QString record;
    if (carteira == u"174" || carteira == u"175") {
        record = QStringLiteral("61") + p.agencia + QStringLiteral("00") + conta + carteira + ZeroEsq(r.codigo, 8)
                 + b.dv + QStringLiteral("0    ") + valorRemessa(r.vtotal) + r.codigo + blanks(4) + ddmmyy(r.dvencto)
                 + especieRemessa(d.especie) + QStringLiteral("N") + ddmmyy(d.dataGeracao) + QStringLiteral("01")
                 + numeroSacado(s, 15) + campoTexto(s.nome, 30) + blanks(9) + enderecoRemessa(s)
                 + campoTexto(s.bairro, 12) + cepRemessa(s.cep) + campoTexto(s.cidade, 15) + campoTexto(s.uf, 2)
                 + blanks(34) + blanks(55) + blanks(55) + empresaRemessa(d) + blanks(31)
                 + sequenciaRemessa(sequencia);
    } else {
        // Wallet 109 carries the receipt as the bank's number; the others zeros.
        const QString nossoNumero = carteira == u"109" ? ZeroEsq(r.codigo, 8) : zeros(8);
        record = empresaRemessa(d) + p.agencia + QStringLiteral("00") + conta + blanks(4) + QStringLiteral("0000")
                 + r.codigo + blanks(19) + nossoNumero + blanks(13) + carteira + blanks(21) + QStringLiteral("I01")
                 + r.codigo + blanks(4) + ddmmyy(r.dvencto) + valorRemessa(r.vtotal) + QStringLiteral("341")
                 + QStringLiteral("00000") + especieRemessa(d.especie) + QStringLiteral("N") + ddmmyy(d.dataGeracao)
                 + instrucaoRemessa(d.instrucao1) + instrucaoRemessa(d.instrucao2) + zeros(13) + blanks(6)
                 + zeros(39) + QStringLiteral("01") + numeroSacado(s, 14) + campoTexto(s.nome, 30) + blanks(10)
                 + enderecoRemessa(s) + campoTexto(s.bairro, 12) + cepRemessa(s.cep) + campoTexto(s.cidade, 15)
                 + campoTexto(s.uf, 2) + blanks(40) + QStringLiteral("99 ") + sequenciaRemessa(sequencia);
    }
    return SemAcento(record);
}
