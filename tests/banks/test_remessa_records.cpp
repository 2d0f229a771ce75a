#include "banks/remessa.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"

#include <gtest/gtest.h>

namespace {
// The field at positions from..to (1-based, both included).
QString pos(const QString &record, int from, int to)
{
    return record.mid(from - 1, to - from + 1);
}
QString blanks(int n) { return QString(n, u' '); }
QString zeros(int n) { return QString(n, u'0'); }

DadosRemessa dados(const char *banco, const char *agencia, const char *conta, const char *carteira)
{
    DadosRemessa d;
    d.parametros.banco = QString::fromLatin1(banco);
    d.parametros.agencia = QString::fromLatin1(agencia);
    d.parametros.cedente = QString::fromLatin1(conta);
    d.parametros.carteira = QString::fromLatin1(carteira);
    d.cedenteNome = QStringLiteral("Condomínio Edifício Solar das Águas Claras");
    d.cgc = kCgcVazio;
    d.cpf = QStringLiteral("123.456.789-09");
    d.especie = QStringLiteral("05 Recibo");
    d.instrucao1 = QStringLiteral("2");
    d.dataGeracao = QDate(2007, 1, 10);
    return d;
}

Sacado sacado()
{
    Sacado s;
    s.cpf = QStringLiteral("987.654.321-00");
    s.cpfVazio = false;
    s.nome = QStringLiteral("João Conceição");
    s.endereco = QStringLiteral("  Rua das Acácias  ");
    s.numero = QStringLiteral("120");
    s.bairro = QStringLiteral("Jardim Botânico Sul");
    s.cep = QStringLiteral("12345-678");
    s.cidade = QStringLiteral("São Paulo");
    s.uf = QStringLiteral("SP");
    return s;
}

const ReciboBanco recibo{QStringLiteral("000321"), Money::fromDouble(432.10), QDate(2007, 1, 15)};
} // namespace

TEST(RemessaPieces, CutFillValuesAndPayerNumber)
{
    EXPECT_EQ(campoTexto(QStringLiteral("abc"), 5), QStringLiteral("abc  "));
    EXPECT_EQ(campoTexto(QStringLiteral("abcdef"), 4), QStringLiteral("abcd"));
    EXPECT_EQ(valorRemessa(Money::fromDouble(1234.50)), QStringLiteral("0000000123450"));
    EXPECT_EQ(valorRemessa(Money::fromDouble(0.07)), QStringLiteral("0000000000007"));

    Sacado s = sacado();
    EXPECT_EQ(numeroSacado(s, 14), QStringLiteral("00098765432100"));
    EXPECT_EQ(numeroSacado(s, 15), QStringLiteral("000098765432100"));
    // D is the first 9 digits and the last 2 characters as typed.
    s.cpf = QStringLiteral("12.345.678/0001-90");
    EXPECT_EQ(numeroSacado(s, 14), QStringLiteral("00012345678090"));
    s.cpfVazio = true;
    EXPECT_EQ(numeroSacado(s, 14), zeros(14));

    EXPECT_EQ(enderecoRemessa(sacado()), QStringLiteral("Rua das Acácias,120").leftJustified(40));
    Sacado longo = sacado();
    longo.endereco = QString(50, u'R');
    EXPECT_EQ(enderecoRemessa(longo), QString(34, u'R') + QStringLiteral(",120") + blanks(2));
    EXPECT_EQ(cepRemessa(QStringLiteral("12345-678")), QStringLiteral("12345678"));
    EXPECT_EQ(cepRemessa(QString()), blanks(8));
    EXPECT_EQ(especieRemessa(QStringLiteral("05 Recibo")), QStringLiteral("05"));
    EXPECT_EQ(instrucaoRemessa(QString()), QStringLiteral("00"));
    EXPECT_EQ(instrucaoRemessa(QStringLiteral("9")), QStringLiteral("09"));
    EXPECT_THROW(instrucaoRemessa(QStringLiteral("123")), RunFailure);

    DadosRemessa d = dados("341", "0057", "12345-6", "109");
    EXPECT_EQ(empresaRemessa(d), QStringLiteral("10100012345678909"));
    d.cgc = QStringLiteral("12.345.678/0001-95");
    EXPECT_EQ(empresaRemessa(d), QStringLiteral("10212345678000195"));

    EXPECT_EQ(trailerRemessa(7), QStringLiteral("9") + blanks(393) + QStringLiteral("000007"));
}

TEST(Remessa341, Header)
{
    const QString h = header341(dados("341", "0057", "12345-6", "109"), 1);
    ASSERT_EQ(h.size(), 400);
    EXPECT_EQ(pos(h, 1, 26), QStringLiteral("01REMESSA01COBRANCA       "));
    EXPECT_EQ(pos(h, 27, 30), QStringLiteral("0057"));
    EXPECT_EQ(pos(h, 31, 32), QStringLiteral("00"));
    EXPECT_EQ(pos(h, 33, 38), QStringLiteral("123456"));
    EXPECT_EQ(pos(h, 39, 46), blanks(8));
    EXPECT_EQ(pos(h, 47, 76), QStringLiteral("Condominio Edificio Solar das "));
    EXPECT_EQ(pos(h, 77, 94), QStringLiteral("341BANCO ITAU SA  "));
    EXPECT_EQ(pos(h, 95, 100), QStringLiteral("100107"));
    EXPECT_EQ(pos(h, 101, 394), blanks(294));
    EXPECT_EQ(pos(h, 395, 400), QStringLiteral("000001"));
    // A short account is filled with zeros.
    EXPECT_EQ(pos(header341(dados("341", "0057", "1-2", "109"), 1), 33, 38), QStringLiteral("000012"));
}

TEST(Remessa341, DetailOfCommonWallets)
{
    const DadosRemessa d = dados("341", "0057", "12345-6", "109");
    const Boleto b = Banco341(recibo, d.parametros);
    const QString r = detalhe341(d, recibo, b, sacado(), 2);
    ASSERT_EQ(r.size(), 400);
    EXPECT_EQ(pos(r, 1, 17), QStringLiteral("10100012345678909"));
    EXPECT_EQ(pos(r, 18, 21), QStringLiteral("0057"));
    EXPECT_EQ(pos(r, 22, 23), QStringLiteral("00"));
    EXPECT_EQ(pos(r, 24, 29), QStringLiteral("123456"));
    EXPECT_EQ(pos(r, 30, 33), blanks(4));
    EXPECT_EQ(pos(r, 34, 37), QStringLiteral("0000"));
    EXPECT_EQ(pos(r, 38, 43), QStringLiteral("000321"));
    EXPECT_EQ(pos(r, 44, 62), blanks(19));
    EXPECT_EQ(pos(r, 63, 70), QStringLiteral("00000321"));
    EXPECT_EQ(pos(r, 71, 83), blanks(13));
    EXPECT_EQ(pos(r, 84, 86), QStringLiteral("109"));
    EXPECT_EQ(pos(r, 87, 107), blanks(21));
    EXPECT_EQ(pos(r, 108, 110), QStringLiteral("I01"));
    EXPECT_EQ(pos(r, 111, 116), QStringLiteral("000321"));
    EXPECT_EQ(pos(r, 117, 120), blanks(4));
    EXPECT_EQ(pos(r, 121, 126), QStringLiteral("150107"));
    EXPECT_EQ(pos(r, 127, 139), QStringLiteral("0000000043210"));
    EXPECT_EQ(pos(r, 140, 142), QStringLiteral("341"));
    EXPECT_EQ(pos(r, 143, 147), QStringLiteral("00000"));
    EXPECT_EQ(pos(r, 148, 149), QStringLiteral("05"));
    EXPECT_EQ(pos(r, 150, 150), QStringLiteral("N"));
    EXPECT_EQ(pos(r, 151, 156), QStringLiteral("100107"));
    EXPECT_EQ(pos(r, 157, 158), QStringLiteral("02"));
    EXPECT_EQ(pos(r, 159, 160), QStringLiteral("00"));
    EXPECT_EQ(pos(r, 161, 173), zeros(13));
    EXPECT_EQ(pos(r, 174, 179), blanks(6));
    EXPECT_EQ(pos(r, 180, 218), zeros(39));
    EXPECT_EQ(pos(r, 219, 220), QStringLiteral("01"));
    EXPECT_EQ(pos(r, 221, 234), QStringLiteral("00098765432100"));
    EXPECT_EQ(pos(r, 235, 264), QStringLiteral("Joao Conceicao").leftJustified(30));
    EXPECT_EQ(pos(r, 265, 274), blanks(10));
    EXPECT_EQ(pos(r, 275, 314), QStringLiteral("Rua das Acacias,120").leftJustified(40));
    EXPECT_EQ(pos(r, 315, 326), QStringLiteral("Jardim Botan"));
    EXPECT_EQ(pos(r, 327, 334), QStringLiteral("12345678"));
    EXPECT_EQ(pos(r, 335, 349), QStringLiteral("Sao Paulo").leftJustified(15));
    EXPECT_EQ(pos(r, 350, 351), QStringLiteral("SP"));
    EXPECT_EQ(pos(r, 352, 391), blanks(40));
    EXPECT_EQ(pos(r, 392, 394), QStringLiteral("99 "));
    EXPECT_EQ(pos(r, 395, 400), QStringLiteral("000002"));

    // Wallet 110 carries zeros where 109 carries the receipt.
    const DadosRemessa d110 = dados("341", "0057", "12345-6", "110");
    const QString r110 = detalhe341(d110, recibo, Banco341(recibo, d110.parametros), sacado(), 2);
    EXPECT_EQ(pos(r110, 63, 70), zeros(8));
    EXPECT_EQ(pos(r110, 84, 86), QStringLiteral("110"));

    // A company with CNPJ, a payer without CPF (the empty mask).
    DadosRemessa dc = d;
    dc.cgc = QStringLiteral("12.345.678/0001-95");
    Sacado semCpf = sacado();
    semCpf.cpf = kCpfVazio;
    semCpf.cpfVazio = true;
    const QString rc = detalhe341(dc, recibo, b, semCpf, 3);
    EXPECT_EQ(pos(rc, 1, 17), QStringLiteral("10212345678000195"));
    EXPECT_EQ(pos(rc, 221, 234), zeros(14));
}

TEST(Remessa341, DetailOfWallets174And175)
{
    const DadosRemessa d = dados("341", "0057", "12345-6", "175");
    const Boleto b = Banco341(recibo, d.parametros);
    const QString r = detalhe341(d, recibo, b, sacado(), 2);
    ASSERT_EQ(r.size(), 400);
    EXPECT_EQ(pos(r, 1, 2), QStringLiteral("61"));
    EXPECT_EQ(pos(r, 3, 6), QStringLiteral("0057"));
    EXPECT_EQ(pos(r, 7, 8), QStringLiteral("00"));
    EXPECT_EQ(pos(r, 9, 14), QStringLiteral("123456"));
    EXPECT_EQ(pos(r, 15, 17), QStringLiteral("175"));
    EXPECT_EQ(pos(r, 18, 25), QStringLiteral("00000321"));
    EXPECT_EQ(pos(r, 26, 26), b.dv);
    EXPECT_EQ(b.dv, Modulo10(QStringLiteral("0057") + QStringLiteral("12345") + QStringLiteral("175") +
                             QStringLiteral("00000321")));
    EXPECT_EQ(pos(r, 27, 31), QStringLiteral("0    "));
    EXPECT_EQ(pos(r, 32, 44), QStringLiteral("0000000043210"));
    EXPECT_EQ(pos(r, 45, 50), QStringLiteral("000321"));
    EXPECT_EQ(pos(r, 51, 54), blanks(4));
    EXPECT_EQ(pos(r, 55, 60), QStringLiteral("150107"));
    EXPECT_EQ(pos(r, 61, 62), QStringLiteral("05"));
    EXPECT_EQ(pos(r, 63, 63), QStringLiteral("N"));
    EXPECT_EQ(pos(r, 64, 69), QStringLiteral("100107"));
    EXPECT_EQ(pos(r, 70, 71), QStringLiteral("01"));
    EXPECT_EQ(pos(r, 72, 86), QStringLiteral("000098765432100"));
    EXPECT_EQ(pos(r, 87, 116), QStringLiteral("Joao Conceicao").leftJustified(30));
    EXPECT_EQ(pos(r, 117, 125), blanks(9));
    EXPECT_EQ(pos(r, 126, 165), QStringLiteral("Rua das Acacias,120").leftJustified(40));
    EXPECT_EQ(pos(r, 166, 177), QStringLiteral("Jardim Botan"));
    EXPECT_EQ(pos(r, 178, 185), QStringLiteral("12345678"));
    EXPECT_EQ(pos(r, 186, 200), QStringLiteral("Sao Paulo").leftJustified(15));
    EXPECT_EQ(pos(r, 201, 202), QStringLiteral("SP"));
    EXPECT_EQ(pos(r, 203, 346), blanks(144));
    EXPECT_EQ(pos(r, 347, 363), QStringLiteral("10100012345678909"));
    EXPECT_EQ(pos(r, 364, 394), blanks(31));
    EXPECT_EQ(pos(r, 395, 400), QStringLiteral("000002"));
    EXPECT_EQ(pos(detalhe341(dados("341", "0057", "12345-6", "174"), recibo, b, sacado(), 2), 1, 2),
              QStringLiteral("61"));
}

TEST(Remessa422, HeaderAndDetail)
{
    DadosRemessa d = dados("422", "0123", "123456-7", "01_");
    const QString h = header422(d, 1);
    ASSERT_EQ(h.size(), 400);
    EXPECT_EQ(pos(h, 1, 26), QStringLiteral("01REMESSA01COBRANCA       "));
    EXPECT_EQ(pos(h, 27, 27), QStringLiteral("0"));
    EXPECT_EQ(pos(h, 28, 31), QStringLiteral("0123"));
    EXPECT_EQ(pos(h, 32, 40), QStringLiteral("001234567"));
    EXPECT_EQ(pos(h, 41, 46), blanks(6));
    EXPECT_EQ(pos(h, 47, 76), QStringLiteral("Condominio Edificio Solar das "));
    EXPECT_EQ(pos(h, 77, 94), QStringLiteral("422BANCO SAFRA    "));
    EXPECT_EQ(pos(h, 95, 100), QStringLiteral("100107"));
    EXPECT_EQ(pos(h, 101, 394), blanks(294));
    EXPECT_EQ(pos(h, 395, 400), QStringLiteral("000001"));

    const Boleto b = Banco422(recibo, d.parametros, 12345679);
    const QString r = detalhe422(d, recibo, b, sacado(), 2);
    ASSERT_EQ(r.size(), 400);
    EXPECT_EQ(pos(r, 1, 17), QStringLiteral("10100012345678909"));
    EXPECT_EQ(pos(r, 18, 18), QStringLiteral("0"));
    EXPECT_EQ(pos(r, 19, 22), QStringLiteral("0123"));
    EXPECT_EQ(pos(r, 23, 31), QStringLiteral("001234567"));
    EXPECT_EQ(pos(r, 32, 62), blanks(31));
    EXPECT_EQ(pos(r, 63, 71), QStringLiteral("123456797"));
    EXPECT_EQ(pos(r, 72, 101), blanks(30));
    EXPECT_EQ(pos(r, 102, 102), QStringLiteral("0"));
    EXPECT_EQ(pos(r, 103, 110), QStringLiteral("00 00101"));
    EXPECT_EQ(pos(r, 111, 116), QStringLiteral("000321"));
    EXPECT_EQ(pos(r, 117, 120), blanks(4));
    EXPECT_EQ(pos(r, 121, 126), QStringLiteral("150107"));
    EXPECT_EQ(pos(r, 127, 139), QStringLiteral("0000000043210"));
    EXPECT_EQ(pos(r, 140, 142), QStringLiteral("422"));
    EXPECT_EQ(pos(r, 143, 143), QStringLiteral("0"));
    EXPECT_EQ(pos(r, 144, 147), QStringLiteral("0123"));
    EXPECT_EQ(pos(r, 148, 149), QStringLiteral("05"));
    EXPECT_EQ(pos(r, 150, 150), QStringLiteral("N"));
    EXPECT_EQ(pos(r, 151, 156), QStringLiteral("100107"));
    EXPECT_EQ(pos(r, 157, 160), QStringLiteral("0200"));
    EXPECT_EQ(pos(r, 161, 173), zeros(13));
    EXPECT_EQ(pos(r, 174, 179), QStringLiteral("000000"));
    EXPECT_EQ(pos(r, 180, 218), zeros(39));
    EXPECT_EQ(pos(r, 219, 220), QStringLiteral("02"));
    EXPECT_EQ(pos(r, 221, 234), QStringLiteral("00098765432100"));
    EXPECT_EQ(pos(r, 235, 274), QStringLiteral("Joao Conceicao").leftJustified(40));
    EXPECT_EQ(pos(r, 275, 314), QStringLiteral("Rua das Acacias,120").leftJustified(40));
    EXPECT_EQ(pos(r, 315, 324), QStringLiteral("Jardim Bot"));
    EXPECT_EQ(pos(r, 325, 326), blanks(2));
    EXPECT_EQ(pos(r, 327, 334), QStringLiteral("12345678"));
    EXPECT_EQ(pos(r, 335, 349), QStringLiteral("Sao Paulo").leftJustified(15));
    EXPECT_EQ(pos(r, 350, 351), QStringLiteral("SP"));
    EXPECT_EQ(pos(r, 352, 388), blanks(37));
    EXPECT_EQ(pos(r, 389, 394), QStringLiteral("422999"));
    EXPECT_EQ(pos(r, 395, 400), QStringLiteral("000002"));

    // Without CPF: "01" and zeros.
    Sacado semCpf = sacado();
    semCpf.cpfVazio = true;
    const QString r2 = detalhe422(d, recibo, b, semCpf, 2);
    EXPECT_EQ(pos(r2, 219, 234), QStringLiteral("01") + zeros(14));

    // A short number makes a short record: everything after it moves left.
    const Boleto curto = Banco422(recibo, d.parametros, 500);
    const QString r3 = detalhe422(d, recibo, curto, sacado(), 2);
    EXPECT_EQ(r3.size(), 395);
    EXPECT_EQ(pos(r3, 63, 66), QStringLiteral("5002"));
    EXPECT_EQ(r3.right(12), QStringLiteral("422999000002"));
}

TEST(Remessa151, HeaderAndDetail)
{
    DadosRemessa d = dados("151", "456", "1234567", "01_");
    d.parametros.convenio = QStringLiteral("5");
    const QString h = header151(d, 1);
    ASSERT_EQ(h.size(), 400);
    EXPECT_EQ(pos(h, 1, 26), QStringLiteral("01REMESSA01COBRANCA       "));
    EXPECT_EQ(pos(h, 27, 30), QStringLiteral("0456"));
    EXPECT_EQ(pos(h, 31, 32), QStringLiteral("05"));
    EXPECT_EQ(pos(h, 33, 33), QStringLiteral("0"));
    EXPECT_EQ(pos(h, 34, 40), QStringLiteral("1234567"));
    EXPECT_EQ(pos(h, 41, 46), blanks(6));
    EXPECT_EQ(pos(h, 47, 76), QStringLiteral("Condominio Edificio Solar das "));
    EXPECT_EQ(pos(h, 77, 82), QStringLiteral("151BNC"));
    EXPECT_EQ(pos(h, 83, 94), blanks(12));
    EXPECT_EQ(pos(h, 95, 100), QStringLiteral("100107"));
    EXPECT_EQ(pos(h, 101, 394), blanks(294));
    EXPECT_EQ(pos(h, 395, 400), QStringLiteral("000001"));

    // Wallet 01, company without CNPJ.
    Boleto b = Banco151(recibo, d.parametros);
    QString r = detalhe151(d, recibo, b, sacado(), 2);
    ASSERT_EQ(r.size(), 400);
    EXPECT_EQ(pos(r, 1, 1), QStringLiteral("1"));
    EXPECT_EQ(pos(r, 2, 17), blanks(16));
    EXPECT_EQ(pos(r, 18, 21), QStringLiteral("0456"));
    EXPECT_EQ(pos(r, 22, 23), QStringLiteral("05"));
    EXPECT_EQ(pos(r, 24, 24), QStringLiteral("0"));
    EXPECT_EQ(pos(r, 25, 31), QStringLiteral("1234567"));
    EXPECT_EQ(pos(r, 32, 35), blanks(4));
    EXPECT_EQ(pos(r, 36, 37), QStringLiteral("00"));
    EXPECT_EQ(pos(r, 38, 62), blanks(25));
    EXPECT_EQ(pos(r, 63, 70), zeros(8));
    EXPECT_EQ(pos(r, 71, 83), zeros(13));
    EXPECT_EQ(pos(r, 84, 107), blanks(24));
    EXPECT_EQ(pos(r, 108, 108), QStringLiteral("5"));
    EXPECT_EQ(pos(r, 109, 110), QStringLiteral("01"));
    EXPECT_EQ(pos(r, 111, 116), QStringLiteral("000321"));
    EXPECT_EQ(pos(r, 117, 120), blanks(4));
    EXPECT_EQ(pos(r, 121, 126), QStringLiteral("150107"));
    EXPECT_EQ(pos(r, 127, 139), QStringLiteral("0000000043210"));
    EXPECT_EQ(pos(r, 140, 147), QStringLiteral("0000000 "));
    EXPECT_EQ(pos(r, 148, 149), QStringLiteral("05"));
    EXPECT_EQ(pos(r, 150, 150), QStringLiteral("N"));
    EXPECT_EQ(pos(r, 151, 156), QStringLiteral("100107"));
    EXPECT_EQ(pos(r, 157, 160), QStringLiteral("0200"));
    EXPECT_EQ(pos(r, 161, 173), zeros(13));
    EXPECT_EQ(pos(r, 174, 179), QStringLiteral("999999"));
    EXPECT_EQ(pos(r, 180, 218), zeros(39));
    EXPECT_EQ(pos(r, 219, 220), QStringLiteral("02"));
    EXPECT_EQ(pos(r, 221, 234), QStringLiteral("00098765432100"));
    EXPECT_EQ(pos(r, 235, 271), QStringLiteral("Joao Conceicao").leftJustified(37));
    EXPECT_EQ(pos(r, 272, 274), QStringLiteral("678"));
    EXPECT_EQ(pos(r, 275, 314), QStringLiteral("Rua das Acacias,120").leftJustified(40));
    EXPECT_EQ(pos(r, 315, 329), QStringLiteral("100012345678909"));
    EXPECT_EQ(pos(r, 330, 334), QStringLiteral("12345"));
    EXPECT_EQ(pos(r, 335, 349), QStringLiteral("Sao Paulo").leftJustified(15));
    EXPECT_EQ(pos(r, 350, 351), QStringLiteral("SP"));
    EXPECT_EQ(pos(r, 352, 391), blanks(40));
    EXPECT_EQ(pos(r, 392, 394), QStringLiteral("990"));
    EXPECT_EQ(pos(r, 395, 400), QStringLiteral("000002"));
    // Both halves of an empty postal code are blanks: the record keeps its 400.
    Sacado semCep = sacado();
    semCep.cep.clear();
    const QString rSemCep = detalhe151(d, recibo, b, semCep, 2);
    ASSERT_EQ(rSemCep.size(), 400);
    EXPECT_EQ(pos(rSemCep, 272, 274), blanks(3));
    EXPECT_EQ(pos(rSemCep, 330, 334), blanks(5));

    // Wallet 02, company with CNPJ: the number is in 63-70 and 108 is "1".
    d.parametros.carteira = QStringLiteral("02_");
    d.cgc = QStringLiteral("12.345.678/0001-95");
    b = Banco151(recibo, d.parametros);
    r = detalhe151(d, recibo, b, sacado(), 2);
    ASSERT_EQ(r.size(), 400);
    EXPECT_EQ(pos(r, 36, 37), QStringLiteral("00"));
    EXPECT_EQ(pos(r, 63, 70), QStringLiteral("0000321") + b.dv);
    EXPECT_EQ(pos(r, 108, 108), QStringLiteral("1"));
    EXPECT_EQ(pos(r, 315, 329), QStringLiteral("212345678000195"));

    // Wallet 05: prefix "99"; with CNPJ 108 is "1", without "2"; wallet 01 with CNPJ "4".
    d.parametros.carteira = QStringLiteral("05_");
    r = detalhe151(d, recibo, Banco151(recibo, d.parametros), sacado(), 2);
    EXPECT_EQ(pos(r, 36, 37), QStringLiteral("99"));
    EXPECT_EQ(pos(r, 108, 108), QStringLiteral("1"));
    d.cgc = kCgcVazio;
    EXPECT_EQ(pos(detalhe151(d, recibo, b, sacado(), 2), 108, 108), QStringLiteral("2"));
    d.parametros.carteira = QStringLiteral("01_");
    d.cgc = QStringLiteral("12.345.678/0001-95");
    EXPECT_EQ(pos(detalhe151(d, recibo, b, sacado(), 2), 108, 108), QStringLiteral("4"));
}
