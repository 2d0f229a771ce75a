// The version adjustment on a demo installation with three condominiums:
// every row of every table carried, the safety copies left, a second run
// refused, a failure or a kill that leaves no condominium without its data.
#include "instalacao.h"

#include "core/datastore.h"
#include "core/dbfiles.h"
#include "core/session.h"
#include "maintenance/ajuste.h"
#include "maintenance/arquivos.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QStringList kCondominios = {QStringLiteral("001"), QStringLiteral("002"), QStringLiteral("003")};

QString con(const QString &nnn) { return QStringLiteral("Con") + nnn + QStringLiteral(".mdb"); }
QString seg(const QString &nnn) { return QStringLiteral("Seg11") + nnn + QStringLiteral(".bak"); }

QByteArray bytes(const QString &caminho)
{
    QFile f(caminho);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// The installation before any run, and its pictures.
struct Antes {
    QString modelo = instalacaoModelo();
    QMap<QString, Retrato> condominio;  // by NNN
    Retrato sistema;
    Antes()
    {
        for (const QString &nnn : kCondominios)
            condominio[nnn] = retrato(modelo + con(nnn), tabelasAjuste());
        sistema = retrato(modelo + QStringLiteral("Con000.mdb"), tabelasSistema());
    }
};
const Antes &antes()
{
    static const Antes a;
    return a;
}

// Every condominium has its file, sound and with its data, whether carried
// over or not; a safety copy beside it holds the same data; the system file
// likewise. What a stop at any moment must leave. The condominiums of
// mudados were changed by the test itself and are checked by it.
void confereNadaPerdido(const QString &dir, const QStringList &mudados = {})
{
    for (const QString &nnn : kCondominios) {
        if (mudados.contains(nnn))
            continue;
        SCOPED_TRACE(con(nnn).toStdString());
        ASSERT_TRUE(QFile::exists(dir + con(nnn)));
        EXPECT_TRUE(checkDatabase(dir + con(nnn)).isEmpty());
        EXPECT_EQ(retrato(dir + con(nnn), tabelasAjuste()), antes().condominio[nnn]);
        if (QFile::exists(dir + seg(nnn))) {
            EXPECT_EQ(retrato(dir + seg(nnn), tabelasAjuste()), antes().condominio[nnn]);
        }
    }
    ASSERT_TRUE(QFile::exists(dir + QStringLiteral("Con000.mdb")));
    EXPECT_EQ(retrato(dir + QStringLiteral("Con000.mdb"), tabelasSistema()), antes().sistema);
    // Once Ajustec.mdb is gone, the old system file is kept.
    if (!QFile::exists(dir + QStringLiteral("Ajustec.mdb"))) {
        EXPECT_EQ(retrato(dir + QStringLiteral("Seg1207.bak"), tabelasSistema()), antes().sistema);
    }
}

} // namespace

TEST(AjusteVersao, CarriesEveryRowLeavesTheSafetyCopiesAndRefusesASecondRun)
{
    QTemporaryDir tmp;
    const QString dir = tmp.path() + u'/';
    copiaPasta(antes().modelo, dir);
    QFile velho(dir + QStringLiteral("Seg1207.bak"));  // an earlier run's copy, replaced
    ASSERT_TRUE(velho.open(QIODevice::WriteOnly));
    velho.write("copia antiga");
    velho.close();

    QStringList passos;
    int maiorTotal = 0, ultimoFeitos = -1;
    const FimAjuste fim = AjustaVersao(dir, [&](const PassoAjuste &p) {
        passos << p.texto;
        maiorTotal = std::max(maiorTotal, p.total);
        ultimoFeitos = p.feitos;
    });
    ASSERT_EQ(fim.situacao, FimAjuste::Feito) << fim.motivo.toStdString();
    // Condominium 4 has no file: passed over, but counted on the bar.
    EXPECT_EQ(fim.ajustados, (QStringList{QStringLiteral("Con000.mdb"), con(QStringLiteral("001")),
                                          con(QStringLiteral("002")), con(QStringLiteral("003"))}));
    EXPECT_EQ(maiorTotal, 4);
    EXPECT_EQ(ultimoFeitos, 4);
    EXPECT_TRUE(passos.contains(QStringLiteral("Con002.mdb: Recibos")));

    confereNadaPerdido(dir);
    for (const QString &nnn : kCondominios) {
        ASSERT_TRUE(QFile::exists(dir + seg(nnn))) << seg(nnn).toStdString();
        // The file is a new one, made from the template: not the old file renamed.
        EXPECT_NE(bytes(dir + con(nnn)), bytes(antes().modelo + con(nnn)));
    }
    EXPECT_FALSE(QFile::exists(dir + QStringLiteral("Seg11004.bak")));
    for (const char *resto : {"Ajustec.mdb", "Ajustec.tmp", "AjMatrix.mdb", "Seg11001.bak.tmp"})
        EXPECT_FALSE(QFile::exists(dir + QLatin1String(resto))) << resto;
    // The new system file keeps the new version's own tables.
    EXPECT_EQ(retrato(dir + QStringLiteral("Con000.mdb"), {QStringLiteral("Estados"), QStringLiteral("bancos")}),
              retrato(builtProgramDir() + QStringLiteral("Ajustec.mdb"), {QStringLiteral("Estados"), QStringLiteral("bancos")}));

    // A second run finds Ajustec.mdb gone, refuses and changes nothing.
    const QByteArray depois = bytes(dir + con(QStringLiteral("002")));
    EXPECT_EQ(AjustaVersao(dir).situacao, FimAjuste::JaFeito);
    EXPECT_EQ(bytes(dir + con(QStringLiteral("002"))), depois);
}

TEST(AjusteVersao, AFailureStopsAtItsFileAndLeavesItAsItWas)
{
    QTemporaryDir tmp;
    const QString dir = tmp.path() + u'/';
    copiaPasta(antes().modelo, dir);
    {
        // An old file with a column the new shape lacks: its INSERT fails
        // (carried, the column's data would be lost).
        Connection cn;
        cn.Open(connectionString(dir, con(QStringLiteral("002")), QString()));
        cn.Execute(QStringLiteral("ALTER TABLE Recibos ADD COLUMN antiga TEXT"));
    }
    const QByteArray con002 = bytes(dir + con(QStringLiteral("002")));
    const FimAjuste fim = AjustaVersao(dir);
    ASSERT_EQ(fim.situacao, FimAjuste::Falhou);
    EXPECT_EQ(fim.numero, kErroBanco);
    EXPECT_EQ(fim.arquivo, con(QStringLiteral("002")));
    EXPECT_TRUE(fim.motivo.contains(QStringLiteral("antiga"))) << fim.motivo.toStdString();
    EXPECT_EQ(fim.ajustados, (QStringList{QStringLiteral("Con000.mdb"), con(QStringLiteral("001"))}));

    EXPECT_EQ(bytes(dir + con(QStringLiteral("002"))), con002);
    EXPECT_TRUE(QFile::exists(dir + seg(QStringLiteral("001"))));
    EXPECT_FALSE(QFile::exists(dir + seg(QStringLiteral("002"))));
    EXPECT_FALSE(QFile::exists(dir + seg(QStringLiteral("003"))));
    EXPECT_FALSE(QFile::exists(dir + QStringLiteral("AjMatrix.mdb")));
    confereNadaPerdido(dir, {QStringLiteral("002")});
}

TEST(AjusteVersao, RefusesWhileAFormHoldsAFileOpen)
{
    QTemporaryDir tmp;
    const QString dir = tmp.path() + u'/';
    copiaPasta(antes().modelo, dir);
    Connection form;
    form.Open(connectionString(dir, con(QStringLiteral("003")), QString()));
    const FimAjuste fim = AjustaVersao(dir);
    EXPECT_EQ(fim.situacao, FimAjuste::EmUso);
    EXPECT_EQ(fim.arquivo, con(QStringLiteral("003")));
    EXPECT_TRUE(QFile::exists(dir + QStringLiteral("Ajustec.mdb")));
    EXPECT_FALSE(QFile::exists(dir + QStringLiteral("Seg1207.bak")));
    form.Close();
    EXPECT_EQ(AjustaVersao(dir).situacao, FimAjuste::Feito);
}

// habtool ajusteversao, killed with SIGKILL as soon as it reports step k,
// for steps spread over the whole run and every safety copy and rename:
// nothing is lost, and a run that had not consumed Ajustec.mdb is made again
// to its end.
TEST(AjusteVersao, AKillAtAnyStepLosesNoCondominium)
{
    QStringList passos;
    {
        QTemporaryDir tmp;
        copiaPasta(antes().modelo, tmp.path());
        QProcess p;
        p.start(builtProgramDir() + QStringLiteral("habtool"), {QStringLiteral("ajusteversao"), tmp.path()});
        ASSERT_TRUE(p.waitForFinished(120000));
        ASSERT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
        passos = QString::fromUtf8(p.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts);
    }
    QList<int> mortes;
    for (int k = 1; k <= passos.size(); ++k)
        if (k % 20 == 1 || passos[k - 1].contains(QStringLiteral("segurança")) || passos[k - 1].startsWith(QStringLiteral("CONDOMINIOS")))
            mortes << k;
    int refeitas = 0;
    for (int k : mortes) {
        SCOPED_TRACE(QStringLiteral("morte após o passo %1: %2").arg(k).arg(passos[k - 1]).toStdString());
        QTemporaryDir tmp;
        const QString dir = tmp.path() + u'/';
        copiaPasta(antes().modelo, dir);
        QProcess p;
        p.start(builtProgramDir() + QStringLiteral("habtool"), {QStringLiteral("ajusteversao"), dir});
        int lidas = 0;
        while (lidas < k && p.state() != QProcess::NotRunning) {
            if (p.canReadLine() || p.waitForReadyRead(5000))
                while (lidas < k && p.canReadLine()) {
                    p.readLine();
                    ++lidas;
                }
        }
        p.kill();
        p.waitForFinished(10000);
        confereNadaPerdido(dir);
        if (QFile::exists(dir + QStringLiteral("Ajustec.mdb"))) {
            ++refeitas;
            const FimAjuste fim = AjustaVersao(dir);
            EXPECT_EQ(fim.situacao, FimAjuste::Feito) << fim.motivo.toStdString();
            confereNadaPerdido(dir);
        } else {
            EXPECT_EQ(AjustaVersao(dir).situacao, FimAjuste::JaFeito);
        }
    }
    EXPECT_GT(refeitas, 0);
    EXPECT_GE(mortes.size(), 12);
}
