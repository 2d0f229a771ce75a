// Slips per second for each bank: 100,000 receipts through the bank's rule
// (number, free field, bar code and typed line). Remittance files: 10,000
// receipts per bank through the record builders into a file, and the whole
// run cmdGerarR over a condominium file.
#include "banks/bancos.h"
#include "banks/calcbarra.h"
#include "banks/remessa.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"
#include "core/session.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

namespace {
ParametrosBanco parametrosDe(const QString &banco)
{
    ParametrosBanco p;
    p.banco = banco;
    p.agencia = QStringLiteral("0123");
    p.cedente = banco == u"104" ? QStringLiteral("12345678") : QStringLiteral("123456-7");
    p.convenio = banco == u"104" ? QStringLiteral("870") : QStringLiteral("1234567");
    p.carteira = banco == u"001" ? QStringLiteral("18_") : banco == u"237" ? QStringLiteral("06_")
                 : banco == u"341" ? QStringLiteral("109") : banco == u"409" ? QStringLiteral("___")
                 : banco == u"353" ? QStringLiteral("102") : QStringLiteral("01_");
    if (banco == u"353" || banco == u"341")
        p.cedente = QStringLiteral("12345-6");
    p.agenciaForm = p.agencia;
    return p;
}

void slips(benchmark::State &state, const char *banco)
{
    const QString code = QString::fromLatin1(banco);
    const ParametrosBanco p = parametrosDe(code);
    constexpr int kSlips = 100000;
    for (auto _ : state) {
        int32_t contador = 10000000;
        for (int i = 1; i <= kSlips; ++i) {
            const ReciboBanco r{QString::number(i).rightJustified(6, u'0'), Money::fromUnits(1234500 + i * 100),
                                QDate(2006, 1, 1).addDays(i % 900)};
            benchmark::DoNotOptimize(calculaBoleto(code, r, p, contador++));
        }
    }
    state.SetItemsProcessed(state.iterations() * kSlips);
}
} // namespace

BENCHMARK_CAPTURE(slips, banco001, "001")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco104, "104")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco237, "237")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco409, "409")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco341, "341")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco422, "422")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco151, "151")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(slips, banco353, "353")->Unit(benchmark::kMillisecond);

namespace {
DadosRemessa dadosRemessa(const QString &banco)
{
    DadosRemessa d;
    d.parametros = parametrosDe(banco);
    d.parametros.cedente = banco == u"341" ? QStringLiteral("12345-6") : QStringLiteral("1234567");
    d.parametros.carteira = banco == u"341" ? QStringLiteral("109") : QStringLiteral("02_");
    d.parametros.convenio = QStringLiteral("05");
    d.cedenteNome = QStringLiteral("Condomínio Edifício Solar");
    d.cgc = kCgcVazio;
    d.cpf = QStringLiteral("123.456.789-09");
    d.especie = QStringLiteral("05 Recibo");
    d.instrucao1 = QStringLiteral("2");
    d.dataGeracao = QDate(2007, 1, 10);
    return d;
}

// The records of a 10,000-receipt file, written with CR LF.
void remittanceRecords(benchmark::State &state, const char *banco)
{
    const QString code = QString::fromLatin1(banco);
    const DadosRemessa d = dadosRemessa(code);
    Sacado s;
    s.cpf = QStringLiteral("987.654.321-00");
    s.cpfVazio = false;
    s.nome = QStringLiteral("João da Conceição");
    s.endereco = QStringLiteral("Rua das Acácias");
    s.numero = QStringLiteral("120");
    s.bairro = QStringLiteral("Jardim Botânico");
    s.cep = QStringLiteral("12345-678");
    s.cidade = QStringLiteral("São Paulo");
    s.uf = QStringLiteral("SP");
    QTemporaryDir dir;
    constexpr int kReceipts = 10000;
    for (auto _ : state) {
        QFile file(dir.filePath(QStringLiteral("REMESSA.TXT")));
        file.open(QIODevice::WriteOnly);
        int16_t seq = 1;
        const auto line = [&](const QString &record) { file.write(record.toLatin1() + "\r\n"); };
        line(code == u"341" ? header341(d, seq) : code == u"422" ? header422(d, seq) : header151(d, seq));
        int32_t contador = 10000000;
        for (int i = 1; i <= kReceipts; ++i) {
            ++seq;
            const ReciboBanco r{QString::number(i).rightJustified(6, u'0'), Money::fromUnits(1502500),
                                QDate(2007, 1, 15)};
            const Boleto b = calculaBoleto(code, r, d.parametros, contador++);
            line(code == u"341" ? detalhe341(d, r, b, s, seq)
                 : code == u"422" ? detalhe422(d, r, b, s, seq)
                                  : detalhe151(d, r, b, s, seq));
        }
        line(trailerRemessa(++seq));
        file.close();
    }
    state.SetItemsProcessed(state.iterations() * kReceipts);
}

// The whole run on a condominium file: per receipt the slip, the UPDATE of
// Recibos, the apartment's read and the record. 9,999 receipts, since the
// closing message fills the count to 4 digits.
void remittanceRun(benchmark::State &state, const char *banco)
{
    const QString code = QString::fromLatin1(banco);
    QTemporaryDir dir;
    const QString path = dir.path() + QStringLiteral("/");
    QFile::copy(QStringLiteral(HAB_BIN_DIR "/Matrix.mdb"), path + QStringLiteral("Con001.mdb"));
    QFile::setPermissions(path + QStringLiteral("Con001.mdb"), QFile::ReadOwner | QFile::WriteOwner);
    Connection con;
    con.Open(connectionString(path, QStringLiteral("Con001.mdb"), QString()));
    con.Execute(QStringLiteral("INSERT INTO Aptos (codigo, nome, cpfpro, enderecopro, numeropro, bairropro, ceppro, "
                               "cidadepro, ufpro, tuso) VALUES ('000101', \"João\", '987.654.321-00', \"Rua A\", "
                               "'1', \"Centro\", '01001-000', \"São Paulo\", 'SP', '1')"));
    constexpr int kReceipts = 9999;
    for (int i = 1; i <= kReceipts; ++i)
        con.Execute(QStringLiteral("INSERT INTO Recibos (codigo, codap, dvencto, situacao, nrbco, vtotal) VALUES "
                                   "('%1', '000101', #01/15/2007#, 'A', '', '150.25')")
                        .arg(ZeroEsq(QString::number(i), 6)));
    // The closing message of each run goes to standard error; the overwrite
    // question of the second run is answered yes.
    HeadlessPrompter answers;
    answers.yesToAll = true;
    Prompter *previous = setPrompter(&answers);
    for (auto _ : state) {
        FormRemessa form;
        form.dados = dadosRemessa(code);
        form.nnr = QStringLiteral("10000000");
        form.pasta = dir.path();
        form.nomeArquivo = QStringLiteral("REMESSA");
        form.selecao = QStringLiteral("SELECT * FROM Recibos ORDER BY codigo");
        cmdGerarR(con, form);
    }
    setPrompter(previous);
    con.Close();
    state.SetItemsProcessed(state.iterations() * kReceipts);
}
} // namespace

BENCHMARK_CAPTURE(remittanceRecords, banco341, "341")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(remittanceRecords, banco422, "422")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(remittanceRecords, banco151, "151")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(remittanceRun, banco341, "341")->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK_CAPTURE(remittanceRun, banco422, "422")->Unit(benchmark::kMillisecond)->Iterations(2);
BENCHMARK_CAPTURE(remittanceRun, banco151, "151")->Unit(benchmark::kMillisecond)->Iterations(2);

BENCHMARK_MAIN();
