// Nossa Caixa's records. The account goes unfilled (7 digits assumed), and the
// postal code is split: suffix at 272-274, prefix at 330-334.
#include "banks/remessa.h"

#include "core/conversions.h"

namespace {
QString blanks(int n) { return QString(n, u' '); }
QString zeros(int n) { return QString(n, u'0'); }
QString ddmmyy(const QDate &date) { return formatDate(date, QStringLiteral("ddmmyy")); }
bool cgcVazio(const DadosRemessa &d) { return d.cgc.trimmed().isEmpty() || d.cgc == kCgcVazio; }
} // namespace

QString header151(const DadosRemessa &d, int16_t sequencia)
{
    const ParametrosBanco &p = d.parametros;
    const QString record = QStringLiteral("01REMESSA01COBRANCA       ") + ZeroEsq(p.agencia, 4) + ZeroEsq(p.convenio, 2)
                           + QStringLiteral("0") + digitos(p.cedente) + blanks(6) + campoTexto(d.cedenteNome, 30)
                           + QStringLiteral("151BNC") + blanks(12) + ddmmyy(d.dataGeracao) + blanks(294)
                           + sequenciaRemessa(sequencia);
    return SemAcento(record);
}

QString detalhe151(const DadosRemessa &d, const ReciboBanco &r, const Boleto &b, const Sacado &s, int16_t sequencia)
{
    const ParametrosBanco &p = d.parametros;
    const bool carteira1 = val(carteiraRemessa(p)) == 1;
    const bool semCgc = cgcVazio(d);
    const QString numero = carteira1 ? zeros(8) : ZeroEsq(r.codigo, 7) + b.dv;
    const QString posicao108 = semCgc ? (carteira1 ? QStringLiteral("5") : QStringLiteral("2"))
                                      : (carteira1 ? QStringLiteral("4") : QStringLiteral("1"));
    const QString empresa = semCgc ? QStringLiteral("1000") + bareText(d.cpf) : QStringLiteral("2") + bareText(d.cgc);
    const QString tipoSacado = s.cpfVazio ? QStringLiteral("01") : QStringLiteral("02");
    const QString record =
        QStringLiteral("1") + blanks(16) + ZeroEsq(p.agencia, 4) + ZeroEsq(p.convenio, 2) + QStringLiteral("0")
        + digitos(p.cedente) + blanks(4) + b.nrbco.left(2) + blanks(25) + numero + zeros(13) + blanks(24) + posicao108
        + QStringLiteral("01") + r.codigo + blanks(4) + ddmmyy(r.dvencto) + valorRemessa(r.vtotal)
        + QStringLiteral("0000000 ") + especieRemessa(d.especie) + QStringLiteral("N") + ddmmyy(d.dataGeracao)
        + instrucaoRemessa(d.instrucao1) + instrucaoRemessa(d.instrucao2) + zeros(13) + QStringLiteral("999999")
        + zeros(39) + tipoSacado + numeroSacado(s, 14) + campoTexto(s.nome, 37) + campoTexto(s.cep.right(3), 3)
        + enderecoRemessa(s) + empresa + campoTexto(s.cep.left(5), 5) + campoTexto(s.cidade, 15)
        + campoTexto(s.uf, 2) + blanks(40) + QStringLiteral("990")
        + sequenciaRemessa(sequencia);
    return SemAcento(record);
}
