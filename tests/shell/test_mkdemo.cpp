// The demo installation, made by the mkdemo program itself.
#include "support/fixtures.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/installation.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/validators.h"
#include "support/scriptedprompter.h"

#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {
bool runMkdemo(const QString &dir, const QString &units)
{
    QProcess p;
    p.start(builtProgramDir() + QStringLiteral("mkdemo"), {dir, units});
    if (!p.waitForFinished(120000))
        return false;
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    return p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}
}

TEST(Mkdemo, MakesACompleteValidDeterministicInstallation)
{
    QTemporaryDir tmp;
    const QString dir = tmp.path() + QStringLiteral("/demo/");
    ASSERT_TRUE(runMkdemo(dir, QStringLiteral("30")));
    for (const char *f : {"habitarium", "Matrix.mdb", "Con000.mdb", "Con001.mdb", "Habitarium.ini"})
        EXPECT_TRUE(QFile::exists(dir + QString::fromLatin1(f))) << f;

    // The documented logins work.
    InstallationSettings s;
    ASSERT_TRUE(readInstallationSettings(dir, s));
    applyInstallationSettings(s);
    session.sysPath = dir;
    session.conSistema = connectionString(dir, QStringLiteral("Con000.mdb"), QString());
    {
        ScriptedPrompter p;
        Connection sys;
        sys.Open(session.conSistema);
        EXPECT_EQ(ConfereLogin(sys, QStringLiteral("admin"), QStringLiteral("admin")), ResultadoLogin::Administrador);
        EXPECT_EQ(ConfereLogin(sys, QStringLiteral("Maria"), QStringLiteral("demo")), ResultadoLogin::Usuario);
        EXPECT_EQ(session.empat, 1);
        EXPECT_TRUE(session.cfcon && session.cfadi && session.cfexc && session.cfalt && session.cfbai);
        EXPECT_EQ(session.nomeEmp, QStringLiteral("Condomínio Residencial Jardim das Palmeiras"));
    }

    const QString condominio = connectionString(dir, QStringLiteral("Con001.mdb"), QString());
    Connection cn;
    cn.Open(condominio);
    EXPECT_EQ(leLinha(condominio, QStringLiteral("SELECT Count(codigo) As I FROM Aptos")), QStringLiteral("30"));

    // Every CPF and CNPJ passes the system's own check.
    {
        ScriptedPrompter p;  // a refused number would show its message here
        Recordset rs = cn.Execute(QStringLiteral("SELECT cpfpro,cpfinq FROM Aptos"));
        int cpfs = 0;
        for (; !rs.eof(); rs.moveNext()) {
            for (const char *c : {"cpfpro", "cpfinq"}) {
                QString text = rs[QString::fromLatin1(c)].text();
                if (text.trimmed().isEmpty())
                    continue;
                ++cpfs;
                EXPECT_TRUE(ValidaCPF(bareText(text))) << text.toStdString();
            }
        }
        EXPECT_GE(cpfs, 30);
        Recordset pj = cn.Execute(QStringLiteral("SELECT cnpj FROM Pjuridica WHERE codigo > 0"));
        for (; !pj.eof(); pj.moveNext())
            EXPECT_TRUE(ValidaCGC(bareText(pj[QStringLiteral("cnpj")].text()))) << pj[QStringLiteral("cnpj")].text().toStdString();
        EXPECT_TRUE(p.calls.empty());
    }

    // Every key a form finds a record by is unique, so that saving or deleting
    // one record never touches another. Pjuridica's two "(Nenhum)" rows of
    // code 0 are the seed rows the system writes itself.
    {
        const QString &sys = session.conSistema;
        const struct {
            const QString &cn;
            const char *table, *key;
        } chaves[] = {{sys, "Clientes", "codigo"},   {sys, "Usuarios", "codigo"},    {sys, "Usuarios", "nome"},
                      {condominio, "Aptos", "codigo"},        {condominio, "Grupos", "codgrupo"},     {condominio, "TpAp", "codigo"},
                      {condominio, "Pjuridica", "codigo"},    {condominio, "Mobra", "codigo"},        {condominio, "Moradores", "nome,codap"},
                      {condominio, "Veiculos", "chapa"},      {condominio, "Tpveiculos", "codgrupo"}, {condominio, "Contas", "codigo"},
                      {condominio, "Eventos", "codigo"},      {condominio, "Plano", "codigo"},        {condominio, "Parametros", "codigo"},
                      {condominio, "Recibos", "codigo"}};
        for (const auto &c : chaves) {
            const QString key = QString::fromLatin1(c.key), table = QString::fromLatin1(c.table);
            EXPECT_EQ(leLinhas(c.cn, QStringLiteral("SELECT ") + key + QStringLiteral(",Count(*) As N FROM ") + table
                                        + (table == QLatin1String("Pjuridica") ? QStringLiteral(" WHERE codigo > 0") : QString())
                                        + QStringLiteral(" GROUP BY ") + key + QStringLiteral(" HAVING Count(*) > 1")),
                      QString())
                << c.table << "." << c.key;
        }
    }

    // The login's seed rows, a receipt per active unit, everything dated in 2008.
    EXPECT_EQ(leLinhas(condominio, QStringLiteral("SELECT nome,tipo FROM Pjuridica WHERE codigo = 0 ORDER BY tipo")),
              QStringLiteral("(Nenhum)|0\n(Nenhum)|1\n"));
    Recordset ativos = cn.Execute(QStringLiteral("SELECT Count(codigo) As I FROM Aptos WHERE situ = 'A'"));
    Recordset recibos = cn.Execute(QStringLiteral("SELECT Count(codigo) As I FROM Recibos"));
    EXPECT_EQ(recibos[QStringLiteral("I")].toInt(), ativos[QStringLiteral("I")].toInt());
    Recordset fora = cn.Execute(QStringLiteral(
        "SELECT Count(codigo) As I FROM Recibos WHERE demis < #01/01/2008# OR dvencto > #12/31/2008# OR vtotal <= 0"));
    EXPECT_EQ(fora[QStringLiteral("I")].toInt(), 0);
    Recordset mov = cn.Execute(QStringLiteral(
        "SELECT Count(codauto) As I FROM Mov08 WHERE datalan >= #01/01/2008# AND datalan <= #12/31/2008#"));
    EXPECT_GE(mov[QStringLiteral("I")].toInt(), 12 * 10);
    EXPECT_EQ(leLinhas(condominio, QStringLiteral("SELECT rbanco,ritauag,ritaucart,fnreci FROM Parametros WHERE codigo = 1")),
              QStringLiteral("341|0742|175|") + ZeroEsq(QString::number(ativos[QStringLiteral("I")].toInt()), 6)
                  + QStringLiteral("\n"));
    const QString owners = leLinhas(condominio, QStringLiteral("SELECT codigo,nome,cpfpro,honor FROM Aptos ORDER BY codigo"));
    cn.Close();

    // The same arguments give the same data.
    ASSERT_TRUE(runMkdemo(dir, QStringLiteral("30")));
    EXPECT_EQ(leLinhas(condominio, QStringLiteral("SELECT codigo,nome,cpfpro,honor FROM Aptos ORDER BY codigo")), owners);

    // The tour photographs the program on it at the size of an office screen.
    QProcess tour;
    tour.start(builtProgramDir() + QStringLiteral("tour"), {dir, tmp.path() + QStringLiteral("/fotos")});
    ASSERT_TRUE(tour.waitForFinished(120000));
    EXPECT_EQ(tour.exitCode(), 0) << tour.readAllStandardError().toStdString();
    EXPECT_EQ(QImage(tmp.path() + QStringLiteral("/fotos/mdiHabitarium.png")).size(), QSize(1366, 768));
    EXPECT_TRUE(QFile::exists(tmp.path() + QStringLiteral("/fotos/mdi_frmBlocos.png")));
}
