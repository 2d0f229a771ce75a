// Start-up checks, installation settings, login, rights and activation,
// without windows.
#include "shellsupport.h"

#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/datastore.h"
#include "core/installation.h"
#include "core/scramble.h"
#include "core/session.h"
#include "core/startup.h"
#include "support/scriptedprompter.h"

#include <QFile>
#include <gtest/gtest.h>

TEST(StartupFiles, EachMissingFileEndsTheProgramWithItsMessage)
{
    // Without Con000.mdb there is no Ajustec.mdb to take its place either.
    for (const QString missing : {QStringLiteral("Matrix.mdb"), QStringLiteral("Con000.mdb")}) {
        TempProgramDir dir;
        QFile::remove(dir.file(missing));
        ScriptedPrompter p;
        EXPECT_THROW(VerificaArquivos(dir.path()), ProgramEnded);
        ASSERT_EQ(p.calls.size(), 1u);
        EXPECT_EQ(p.calls[0].text, missing + QStringLiteral(" não está presente no diretório, Sistema Encerrado !"));
        EXPECT_EQ(p.calls[0].title, QStringLiteral("Erro Fatal"));
        EXPECT_EQ(p.calls[0].style, vbCritical);
        EXPECT_TRUE(p.programEnded);
    }
}

TEST(StartupFiles, FirstInstallationRenamesAjustecOnlyOnYes)
{
    TempProgramDir dir;
    QFile::rename(dir.file(QStringLiteral("Con000.mdb")), dir.file(QStringLiteral("Ajustec.mdb")));
    {
        ScriptedPrompter p;
        p.answer(vbNo, QStringLiteral("Trata-se da primeira instalação ?"));
        EXPECT_THROW(VerificaArquivos(dir.path()), ProgramEnded);
        EXPECT_EQ(p.last().title, QStringLiteral("Atenção"));
        EXPECT_EQ(p.last().style, vbYesNo + vbCritical + vbDefaultButton2);
        EXPECT_TRUE(QFile::exists(dir.file(QStringLiteral("Ajustec.mdb"))));
        EXPECT_FALSE(QFile::exists(dir.file(QStringLiteral("Con000.mdb"))));
    }
    {
        ScriptedPrompter p;
        p.answer(vbYes, QStringLiteral("Trata-se da primeira instalação ?"));
        VerificaArquivos(dir.path());
        EXPECT_FALSE(QFile::exists(dir.file(QStringLiteral("Ajustec.mdb"))));
        EXPECT_TRUE(QFile::exists(dir.file(QStringLiteral("Con000.mdb"))));
        EXPECT_EQ(session.conSistema, connectionString(dir.path(), QStringLiteral("Con000.mdb"), QString()));
    }
    {
        // With Con000.mdb in place Ajustec.mdb is not looked at: no question.
        QFile::copy(dir.file(QStringLiteral("Con000.mdb")), dir.file(QStringLiteral("Ajustec.mdb")));
        ScriptedPrompter p;
        VerificaArquivos(dir.path());
        EXPECT_TRUE(p.calls.empty());
        EXPECT_TRUE(QFile::exists(dir.file(QStringLiteral("Ajustec.mdb"))));
    }
}

TEST(InstallationSettings, WrittenReadBackAndPadded)
{
    TempProgramDir dir;
    InstallationSettings missing;
    EXPECT_FALSE(readInstallationSettings(dir.path(), missing));

    const QString senha = EmbaralhaAdm(QStringLiteral("Pa=ss ;#x"));
    ASSERT_TRUE(writeInstallationSettings(
        dir.path(), {QStringLiteral("Administração São João; Ltda."), QStringLiteral("chefe"), senha}));
    InstallationSettings back;
    ASSERT_TRUE(readInstallationSettings(dir.path(), back));
    EXPECT_EQ(back.nomeCliente, QStringLiteral("Administração São João; Ltda."));
    EXPECT_EQ(back.adminLogin, QStringLiteral("chefe"));
    EXPECT_EQ(back.adminSenha, senha);  // leading blank and odd characters survive

    EXPECT_EQ(padNomeCliente(QStringLiteral("Abc")).size(), 40);
    EXPECT_TRUE(padNomeCliente(QStringLiteral("Abc")).startsWith(QStringLiteral("Abc ")));
    EXPECT_EQ(padNomeCliente(QString(50, QLatin1Char('x'))), QString(40, QLatin1Char('x')));
}

TEST(Login, AdministratorUsersAndRefusals)
{
    ShellDir dir;
    Connection cn;
    cn.Open(session.conSistema);

    // The administrator's login compares exactly and writes only usuario.
    session.empat = 5;
    EXPECT_EQ(ConfereLogin(cn, QStringLiteral("admin"), QStringLiteral("mestre")), ResultadoLogin::Administrador);
    EXPECT_EQ(session.usuario, QStringLiteral("Administrador"));
    EXPECT_EQ(session.empat, 5);
    EXPECT_EQ(ConfereLogin(cn, QStringLiteral("ADMIN"), QStringLiteral("mestre")), ResultadoLogin::Recusado);

    // A user: every value of the row comes into the session.
    EXPECT_EQ(ConfereLogin(cn, QStringLiteral("Maria"), QStringLiteral("segredo")), ResultadoLogin::Usuario);
    EXPECT_EQ(session.usuario, QStringLiteral("Maria"));
    EXPECT_EQ(session.codUsuario, 1);
    EXPECT_EQ(session.impressora, QStringLiteral("L"));
    EXPECT_EQ(session.empat, 1);
    EXPECT_EQ(session.nomeEmp, QStringLiteral("Residencial Teste"));
    EXPECT_TRUE(session.cfcon && session.cfadi && session.cfexc && session.cfalt && session.cfbai);
    EXPECT_TRUE(session.bdcon && session.bdadi && session.bdexc && session.bdalt);

    // The user's name compares as the database compares text: without case.
    EXPECT_EQ(ConfereLogin(cn, QStringLiteral("maria"), QStringLiteral("segredo")), ResultadoLogin::Usuario);

    // A user without a condominium keeps the name of the one before.
    EXPECT_EQ(ConfereLogin(cn, QStringLiteral("Joao"), QStringLiteral("abc")), ResultadoLogin::Usuario);
    EXPECT_EQ(session.empat, 0);
    EXPECT_EQ(session.nomeEmp, QStringLiteral("Residencial Teste"));
    EXPECT_FALSE(session.cfcon);

    EXPECT_EQ(ConfereLogin(cn, QStringLiteral("Maria"), QStringLiteral("errada")), ResultadoLogin::Recusado);
    EXPECT_EQ(ConfereLogin(cn, QStringLiteral("Ninguem"), QStringLiteral("segredo")), ResultadoLogin::Recusado);
    cn.Close();

    // Blank fields never reach the database: any statement on the closed connection would fail.
    for (const auto &[login, senha] : {std::pair{QString(), QStringLiteral("segredo")}, {QStringLiteral("Maria"), QString()}})
        EXPECT_EQ(ConfereLogin(cn, login, senha), ResultadoLogin::CamposVazios);
}

TEST(Activation, WithAndWithoutTheFile)
{
    ShellDir dir;
    session.usuario = QStringLiteral("Joao");
    Connection cn;
    cn.Open(session.conSistema);
    {
        // No file: yes copies the template, without the Pjuridica rows.
        ScriptedPrompter p;
        p.answer(vbYes, QStringLiteral("Não existe banco de dados para este cliente, criar ? "));
        AtivaCondominio(cn, 1, QStringLiteral("Residencial Teste"));
        EXPECT_EQ(p.last().title, QStringLiteral("Criar Arquivo..."));
    }
    EXPECT_TRUE(QFile::exists(dir.file(QStringLiteral("Con001.mdb"))));
    EXPECT_EQ(session.empat, 1);
    EXPECT_EQ(session.nomeEmp, QStringLiteral("Residencial Teste"));
    EXPECT_EQ(session.arqAtivo, QStringLiteral("Con001.mdb"));
    EXPECT_EQ(session.conAtiva, connectionString(dir.path(), QStringLiteral("Con001.mdb"), QString()));
    EXPECT_EQ(dir.sistema(QStringLiteral("SELECT empat FROM Usuarios WHERE codigo = 2")),
              QStringLiteral("1"));
    EXPECT_EQ(dir.ativo(QStringLiteral("SELECT Count(codigo) As I FROM Pjuridica")), QStringLiteral("0"));
    {
        // The file is there now: no question.
        ScriptedPrompter p;
        AtivaCondominio(cn, 1, QStringLiteral("Residencial Teste"));
        EXPECT_TRUE(p.calls.empty());
    }
    {
        // No on the question ends the program, with Usuarios.empat already changed.
        ScriptedPrompter p;
        p.answer(vbNo, QStringLiteral("criar ?"));
        EXPECT_THROW(AtivaCondominio(cn, 9, QStringLiteral("")), ProgramEnded);
        EXPECT_FALSE(QFile::exists(dir.file(QStringLiteral("Con009.mdb"))));
        EXPECT_EQ(dir.sistema(QStringLiteral("SELECT empat FROM Usuarios WHERE codigo = 2")),
                  QStringLiteral("9"));
    }
    cn.Close();
}

TEST(Activation, LoginPathChoosesAnotherOrEnds)
{
    // Yes makes the seeded file: test_shellforms, the change of user.
    ShellDir dir;
    session.empat = 4;
    {
        // No, then yes: another condominium is chosen; leaving it unchosen
        // leaves conAtiva naming the missing file.
        ScriptedPrompter p;
        p.answer(vbNo, QStringLiteral("Cria um Novo Vazio"));
        p.answer(vbYes, QStringLiteral("Deseja Escolher Outro Condomínio ? Se não o sistema será encerrado..."));
        bool escolheu = false;
        PreparaArquivoAtivo([&] { escolheu = true; });
        EXPECT_TRUE(escolheu);
        EXPECT_EQ(p.last().title, QStringLiteral("Atenção..."));
        EXPECT_EQ(session.conAtiva, connectionString(dir.path(), QStringLiteral("Con004.mdb"), QString()));
        EXPECT_FALSE(QFile::exists(dir.file(QStringLiteral("Con004.mdb"))));
    }
    {
        ScriptedPrompter p;
        p.answer(vbNo, QStringLiteral("Cria um Novo Vazio"));
        p.answer(vbNo, QStringLiteral("Deseja Escolher Outro"));
        EXPECT_THROW(PreparaArquivoAtivo([] {}), ProgramEnded);
    }
}

TEST(Activation, FileNameOfACode)
{
    // Code 0 is the system file itself; a code wider than three digits is not cut or refused.
    EXPECT_EQ(nomeArquivoCondominio(0), QStringLiteral("Con000.mdb"));
    EXPECT_EQ(nomeArquivoCondominio(27), QStringLiteral("Con027.mdb"));
    EXPECT_EQ(nomeArquivoCondominio(1000), QStringLiteral("Con1000.mdb"));
}

TEST(ErrorList, NumbersTypesAndItsLimit)
{
    LimpaErros();
    AnotaErro(kAlertaErro, QStringLiteral("primeiro"));
    EXPECT_FALSE(temErroFatal());
    AnotaErro(kErroFatal, QStringLiteral("segundo"));
    EXPECT_TRUE(temErroFatal());
    EXPECT_EQ(session.qtErros, 3);
    EXPECT_EQ(session.listaErros[1][0], QStringLiteral("2"));
    EXPECT_EQ(session.listaErros[1][1], QStringLiteral("Erro Fatal"));
    EXPECT_EQ(session.listaErros[1][2], QStringLiteral("segundo"));
    for (int n = 3; n <= 20; ++n)
        AnotaErro(kAlertaErro, QStringLiteral("mais"));
    EXPECT_THROW(AnotaErro(kAlertaErro, QStringLiteral("o 21º")), RunFailure);
    LimpaErros();
    EXPECT_EQ(session.qtErros, 1);
    EXPECT_FALSE(temErroFatal());
    EXPECT_TRUE(session.listaErros[0][2].isEmpty());
}
