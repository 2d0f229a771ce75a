#include "banks/remessa.h"

#include "banks/checkdigits.h"
#include "core/conversions.h"
#include "remessafields.h"

#include <gtest/gtest.h>

namespace {

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

    EXPECT_EQ(enderecoRemessa(sacado()), padded("Rua das Acácias,120", 40));
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
    expectFields(h, {
        {1, 26, "01REMESSA01COBRANCA       "}, {27, 30, "0057"}, {31, 32, "00"}, {33, 38, "123456"},
        {39, 46, blanks(8)}, {47, 76, "Condominio Edificio Solar das "}, {77, 94, "341BANCO ITAU SA  "},
        {95, 100, "100107"}, {101, 394, blanks(294)}, {395, 400, "000001"}
    });
    // A short account is filled with zeros.
    EXPECT_EQ(pos(header341(dados("341", "0057", "1-2", "109"), 1), 33, 38), QStringLiteral("000012"));
}

TEST(Remessa341, DetailOfCommonWallets)
{
    const DadosRemessa d = dados("341", "0057", "12345-6", "109");
    const Boleto b = Banco341(recibo, d.parametros);
    const QString r = detalhe341(d, recibo, b, sacado(), 2);
    ASSERT_EQ(r.size(), 400);
    expectFields(r, {
        {1, 17, "10100012345678909"}, {18, 21, "0057"}, {22, 23, "00"}, {24, 29, "123456"}, {30, 33, blanks(4)},
        {34, 37, "0000"}, {38, 43, "000321"}, {44, 62, blanks(19)}, {63, 70, "00000321"}, {71, 83, blanks(13)},
        {84, 86, "109"}, {87, 107, blanks(21)}, {108, 110, "I01"}, {111, 116, "000321"}, {117, 120, blanks(4)},
        {121, 126, "150107"}, {127, 139, "0000000043210"}, {140, 142, "341"}, {143, 147, "00000"}, {148, 149, "05"},
        {150, 150, "N"}, {151, 156, "100107"}, {157, 158, "02"}, {159, 160, "00"}, {161, 173, zeros(13)},
        {174, 179, blanks(6)}, {180, 218, zeros(39)}, {219, 220, "01"}, {221, 234, "00098765432100"},
        {235, 264, padded("Joao Conceicao", 30)}, {265, 274, blanks(10)},
        {275, 314, padded("Rua das Acacias,120", 40)}, {315, 326, "Jardim Botan"}, {327, 334, "12345678"},
        {335, 349, padded("Sao Paulo", 15)}, {350, 351, "SP"}, {352, 391, blanks(40)}, {392, 394, "99 "},
        {395, 400, "000002"}
    });

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
    EXPECT_EQ(b.dv, Modulo10(QStringLiteral("0057") + QStringLiteral("12345") + QStringLiteral("175") +
                             QStringLiteral("00000321")));
    expectFields(r, {
        {1, 2, "61"}, {3, 6, "0057"}, {7, 8, "00"}, {9, 14, "123456"}, {15, 17, "175"}, {18, 25, "00000321"},
        {26, 26, b.dv}, {27, 31, "0    "}, {32, 44, "0000000043210"}, {45, 50, "000321"}, {51, 54, blanks(4)},
        {55, 60, "150107"}, {61, 62, "05"}, {63, 63, "N"}, {64, 69, "100107"}, {70, 71, "01"},
        {72, 86, "000098765432100"}, {87, 116, padded("Joao Conceicao", 30)}, {117, 125, blanks(9)},
        {126, 165, padded("Rua das Acacias,120", 40)}, {166, 177, "Jardim Botan"}, {178, 185, "12345678"},
        {186, 200, padded("Sao Paulo", 15)}, {201, 202, "SP"}, {203, 346, blanks(144)},
        {347, 363, "10100012345678909"}, {364, 394, blanks(31)}, {395, 400, "000002"}
    });
    EXPECT_EQ(pos(detalhe341(dados("341", "0057", "12345-6", "174"), recibo, b, sacado(), 2), 1, 2),
              QStringLiteral("61"));
}

TEST(Remessa422, HeaderAndDetail)
{
    DadosRemessa d = dados("422", "0123", "123456-7", "01_");
    const QString h = header422(d, 1);
    ASSERT_EQ(h.size(), 400);
    expectFields(h, {
        {1, 26, "01REMESSA01COBRANCA       "}, {27, 27, "0"}, {28, 31, "0123"}, {32, 40, "001234567"},
        {41, 46, blanks(6)}, {47, 76, "Condominio Edificio Solar das "}, {77, 94, "422BANCO SAFRA    "},
        {95, 100, "100107"}, {101, 394, blanks(294)}, {395, 400, "000001"}
    });

    const Boleto b = Banco422(recibo, d.parametros, 12345679);
    const QString r = detalhe422(d, recibo, b, sacado(), 2);
    ASSERT_EQ(r.size(), 400);
    expectFields(r, {
        {1, 17, "10100012345678909"}, {18, 18, "0"}, {19, 22, "0123"}, {23, 31, "001234567"}, {32, 62, blanks(31)},
        {63, 71, "123456797"}, {72, 101, blanks(30)}, {102, 102, "0"}, {103, 110, "00 00101"}, {111, 116, "000321"},
        {117, 120, blanks(4)}, {121, 126, "150107"}, {127, 139, "0000000043210"}, {140, 142, "422"}, {143, 143, "0"},
        {144, 147, "0123"}, {148, 149, "05"}, {150, 150, "N"}, {151, 156, "100107"}, {157, 160, "0200"},
        {161, 173, zeros(13)}, {174, 179, "000000"}, {180, 218, zeros(39)}, {219, 220, "02"},
        {221, 234, "00098765432100"}, {235, 274, padded("Joao Conceicao", 40)},
        {275, 314, padded("Rua das Acacias,120", 40)}, {315, 324, "Jardim Bot"}, {325, 326, blanks(2)},
        {327, 334, "12345678"}, {335, 349, padded("Sao Paulo", 15)}, {350, 351, "SP"}, {352, 388, blanks(37)},
        {389, 394, "422999"}, {395, 400, "000002"}
    });

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
    expectFields(h, {
        {1, 26, "01REMESSA01COBRANCA       "}, {27, 30, "0456"}, {31, 32, "05"}, {33, 33, "0"}, {34, 40, "1234567"},
        {41, 46, blanks(6)}, {47, 76, "Condominio Edificio Solar das "}, {77, 82, "151BNC"}, {83, 94, blanks(12)},
        {95, 100, "100107"}, {101, 394, blanks(294)}, {395, 400, "000001"}
    });

    // Wallet 01, company without CNPJ.
    Boleto b = Banco151(recibo, d.parametros);
    QString r = detalhe151(d, recibo, b, sacado(), 2);
    ASSERT_EQ(r.size(), 400);
    expectFields(r, {
        {1, 1, "1"}, {2, 17, blanks(16)}, {18, 21, "0456"}, {22, 23, "05"}, {24, 24, "0"}, {25, 31, "1234567"},
        {32, 35, blanks(4)}, {36, 37, "00"}, {38, 62, blanks(25)}, {63, 70, zeros(8)}, {71, 83, zeros(13)},
        {84, 107, blanks(24)}, {108, 108, "5"}, {109, 110, "01"}, {111, 116, "000321"}, {117, 120, blanks(4)},
        {121, 126, "150107"}, {127, 139, "0000000043210"}, {140, 147, "0000000 "}, {148, 149, "05"}, {150, 150, "N"},
        {151, 156, "100107"}, {157, 160, "0200"}, {161, 173, zeros(13)}, {174, 179, "999999"}, {180, 218, zeros(39)},
        {219, 220, "02"}, {221, 234, "00098765432100"}, {235, 271, padded("Joao Conceicao", 37)}, {272, 274, "678"},
        {275, 314, padded("Rua das Acacias,120", 40)}, {315, 329, "100012345678909"}, {330, 334, "12345"},
        {335, 349, padded("Sao Paulo", 15)}, {350, 351, "SP"}, {352, 391, blanks(40)}, {392, 394, "990"},
        {395, 400, "000002"}
    });
    // Both halves of an empty postal code are blanks: the record keeps its 400.
    Sacado semCep = sacado();
    semCep.cep.clear();
    const QString rSemCep = detalhe151(d, recibo, b, semCep, 2);
    ASSERT_EQ(rSemCep.size(), 400);
    expectFields(rSemCep, {{272, 274, blanks(3)}, {330, 334, blanks(5)}});

    // Wallet 02, company with CNPJ: the number is in 63-70 and 108 is "1".
    d.parametros.carteira = QStringLiteral("02_");
    d.cgc = QStringLiteral("12.345.678/0001-95");
    b = Banco151(recibo, d.parametros);
    r = detalhe151(d, recibo, b, sacado(), 2);
    ASSERT_EQ(r.size(), 400);
    expectFields(r, {
        {36, 37, "00"}, {63, 70, QStringLiteral("0000321") + b.dv}, {108, 108, "1"}, {315, 329, "212345678000195"}
    });

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
