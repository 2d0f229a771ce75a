// Every register's description, read without a window: each statement names
// only values the form gives, comes out as the system writes it, and runs on a
// fresh file (insert, find, update, list, print, delete).
#include "support/fixtures.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/session.h"
#include "registers/forms/recordform.h"

#include <gtest/gtest.h>

namespace {
// A value for each bound control, as its kind writes it.
QHash<QString, QString> valoresDeExemplo(const Registro &r, const QString &codigo)
{
    QHash<QString, QString> v{{QStringLiteral("codigo"), codigo}};
    for (const Campo &c : r.campos) {
        switch (c.tipo) {
        case Tipo::Numero: v.insert(c.controle, QStringLiteral("1.5")); break;
        case Tipo::Data: v.insert(c.controle, c.nulo); break;
        case Tipo::Booleano: v.insert(c.controle, QStringLiteral("True")); break;
        case Tipo::Opcao: v.insert(c.controle, c.opcoes.first().second); break;
        case Tipo::Mascara: v.insert(c.controle, QStringLiteral("_____")); break;
        default: v.insert(c.controle, QStringLiteral("X")); break;
        }
    }
    // What the forms compute.
    v.insert(QStringLiteral("grupo"), QStringLiteral("True"));
    v.insert(QStringLiteral("cep"), QStringLiteral("00000-000"));
    v.insert(QStringLiteral("senha"), QStringLiteral("abc"));
    v.insert(QStringLiteral("hoje"), QStringLiteral("23/11/2026"));
    v.insert(QStringLiteral("empat"), QStringLiteral("1"));
    for (const char *unidade : {"codap", "codapAntigo", "apto"})
        v.insert(QString::fromLatin1(unidade), QStringLiteral("000101"));
    v.insert(QStringLiteral("nomeAntigo"), QStringLiteral("X"));
    v.insert(QStringLiteral("vinculo"), QStringLiteral("1"));
    v.insert(QStringLiteral("tipo"), QStringLiteral("0"));
    v.insert(QStringLiteral("codemap"), QStringLiteral("0"));
    v.insert(QStringLiteral("classe"), QStringLiteral("O"));
    v.insert(QStringLiteral("tapto"), QStringLiteral("01"));
    v.insert(QStringLiteral("tuso"), QStringLiteral("1"));
    v.insert(QStringLiteral("situ"), QStringLiteral("A"));
    v.insert(QStringLiteral("codimob"), QStringLiteral("1"));
    v.insert(QStringLiteral("codfin"), QStringLiteral("1"));
    return v;
}

struct Esperado {
    const char *form;
    const char *codigo;
    const char *insere;  // with valoresDeExemplo
    const char *altera;
};

const Esperado kEsperados[] = {
    {"frmBlocos", "07", "INSERT INTO Grupos(codgrupo,Grupo,Descri) VALUES('07',True,'X')",
     "Update Grupos Set Descri = 'X' Where codgrupo = '07'"},
    {"frmTTipAp", "07", "INSERT INTO TpAp(codigo,descri,rateio) VALUES('07','X','1.5')",
     "Update TpAp Set Descri = 'X', rateio = '1.5' Where codigo = '07'"},
    {"frmCpj", "77",
     "INSERT INTO PJuridica(codigo,Nome,endereco,bairro,cidade,uf,cep,tipo,numero,complemento,cnpj,cpf,inscest,"
     "contato0,setor0,nascto0,contato1,setor1,nascto1,contato2,setor2,nascto2,ddd,fone0,fone1,fone2,email,homepage,"
     "fax,obs) VALUES( \"77\",\"X\",\"X\",\"X\",\"X\",\"X\",\"_____\",'0',\"X\",\"X\",\"_____\",\"_____\",\"X\","
     "\"X\",\"X\",null,\"X\",\"X\",null,\"X\",\"X\",null,\"X\",\"X\",\"X\",\"X\",\"X\",\"X\",\"X\",\"X\")",
     "Update PJuridica Set Nome = \"X\",endereco = \"X\",bairro = \"X\",cidade = \"X\",uf = \"X\",cep = \"_____\","
     "tipo = '0',numero = \"X\",complemento = \"X\",cnpj = \"_____\",cpf = \"_____\",inscest = \"X\","
     "contato0 = \"X\",setor0 = \"X\",Nascto0 = null,contato1 = \"X\",setor1 = \"X\",Nascto1 = null,"
     "contato2 = \"X\",setor2 = \"X\",Nascto2 = null,ddd = \"X\",fone0 = \"X\",fone1 = \"X\",fone2 = \"X\","
     "email = \"X\",homepage = \"X\",fax = \"X\",obs = \"X\" Where codigo = 77"},
    {"frmUsucli", "77",
     "INSERT INTO clientes(codigo,nome,endereco,numero,complemento,bairro,cidade,uf,cep,cgc,cpf,ddd,fone1,fone2,fax,"
     "email,homepage,obs) VALUES( '77',\"X\",\"X\",\"X\",\"X\",\"X\",\"X\",\"X\",\"00000-000\",\"_____\",\"_____\","
     "\"X\",\"X\",\"X\",\"X\",\"X\",\"X\",\"X\")",
     "Update clientes Set nome = \"X\",endereco = \"X\",numero = \"X\",complemento = \"X\",bairro = \"X\","
     "cidade = \"X\",uf = \"X\",cep = \"00000-000\",cgc = \"_____\",cpf = \"_____\",ddd = \"X\",fone1 = \"X\","
     "fone2 = \"X\",fax = \"X\",email = \"X\",homepage = \"X\",obs = \"X\" Where codigo = 77"},
    {"frmUsuarios", "77",
     "INSERT INTO usuarios(codigo,nome,senha,impressora,dsenha,empat,bdcon,bdadi,bdexc,bdalt,cfcon,cfadi,cfexc,cfalt,"
     "cfbai) VALUES( '77',\"X\",\"abc\",'M','23/11/2026','1',True,True,True,True,True,True,True,True,True)",
     "Update usuarios Set nome = \"X\",impressora = 'M',empat = '1',Bdcon = True,Bdadi = True,Bdexc = True,"
     "Bdalt = True,Cfcon = True,Cfadi = True,Cfexc = True,Cfalt = True,Cfbai = True Where codigo = 77"},
    // A resident is found by the number the file gives it: the first is 1.
    {"frmMoradores", "1",
     "INSERT INTO Moradores(nome,nascto,vinculo,codap) VALUES(\"X\",Null,'1','000101')",
     "Update Moradores Set nascto = Null,nome = \"X\",codap = '000101',"
     "vinculo = '1' Where codap = '000101' and nome = \"X\""},
    {"frmVeiculos", "ABC-1234",
     "INSERT INTO Veiculos(chapa,apto,proprietario,ano,cor,marca,modelo,obs) VALUES('ABC-1234','000101',"
     "\"X\",'_____',\"X\",\"X\",\"X\",\"X\")",
     "Update Veiculos Set apto = '000101',proprietario = \"X\",ano = '_____',cor = \"X\",marca = \"X\","
     "modelo = \"X\",obs = \"X\" Where chapa = 'ABC-1234'"},
    {"frmTpveiculos", "0701",
     "INSERT INTO Tpveiculos(codgrupo,Grupo,Descri) VALUES('0701',True,\"X\")",
     "Update Tpveiculos Set Descri = \"X\" Where codgrupo = '0701'"},
    {"frmTEventos", "077",
     "INSERT INTO Eventos(codigo,nome,tipo,ir,refer,valor) VALUES('077',\"X\",'H',True,True,'1.5')",
     "Update Eventos Set nome = \"X\",tipo = 'H',ir = True,refer = True,valor = '1.5' Where codigo = '077'"},
    {"frmMobra", "77",
     "INSERT INTO Mobra(codigo,nome,rg,cpf,ctps,serctps,ufctps,endereco,numero,complemento,bairro,cidade,"
     "uf,cep,tipo,nascto,codemap,qualif1,qualif2,qualif3,observ) VALUES(77,\"X\",'_____','_____',\"X\","
     "\"X\",\"X\",\"X\",\"X\",\"X\",\"X\",\"X\",\"X\",'_____','0',null,0,\"X\",\"X\",\"X\",\"X\")",
     "Update Mobra Set Nome = \"X\",rg = '_____',cpf = '_____',ctps = \"X\",serctps = \"X\","
     "ufctps = \"X\",endereco = \"X\",numero = \"X\",complemento = \"X\",bairro = \"X\",cidade = \"X\","
     "uf = \"X\",cep = '_____',tipo = '0',Nascto = null,codemap = 0,qualif1 = \"X\",qualif2 = \"X\","
     "qualif3 = \"X\",observ = \"X\" Where codigo = 77"},
    {"frmTPlanoCtas", "09.901",
     "INSERT INTO Plano(codigo,nome,tipo,classe,sintetico) VALUES('09.901',\"X\",\"0\",\"O\",True)",
     "Update Plano Set nome = \"X\",tipo = '0',classe = 'O',sintetico = True Where codigo = '09.901'"},
    {"frmTContas", "77",
     "INSERT INTO Contas(codigo,nbanco,nagencia,codbco,codagc,nrconta) VALUES(77,\"X\",\"X\",'X','X','X')",
     "Update Contas Set nbanco = \"X\",NAgencia = \"X\",codbco = 'X',codagc = 'X',nrconta = 'X' Where codigo = 77"},
    {"frmAptos", "000077",
     "INSERT INTO Aptos(codigo,nome,codinterno,tapto,tuso,situ,nrcontpm,seguropro,quitado,cabina,aposentado,"
     "crateio,codimob,codfin,conjugepro,enderecopro,numeropro,complementopro,bairropro,cidadepro,ufpro,ceppro,"
     "cpfpro,rgpro,cnpjpro,emailpro,inquilino,enderecoinq,numeroinq,complementoinq,bairroinq,cidadeinq,ufinq,"
     "cepinq,cpfinq,rginq,cnpjinq,emailinq,dddap,foneap,dddpro,fonepro,dddinq,foneinq,dddcoml,fonecoml,tipcob,"
     "nemis,demis,nrecibo,tipbolbco,observ) VALUES('000077',\"X\",\"X\",'01','1','A','_____',True,True,True,"
     "True,'1.5','1','1',\"X\",\"X\",\"X\",\"X\",\"X\",\"X\",'X','_____','_____','_____','_____',\"X\","
     "\"X\",\"X\",\"X\",\"X\",\"X\",\"X\",'X','_____','_____','_____','_____',\"X\",'X','X','X','X','X','X',"
     "'X','X','X','0','01/01/2003','000000','X',\"X\")",
     "Update Aptos Set nome = \"X\",codinterno = \"X\",tapto = '01',tuso = '1',situ = 'A',nrcontpm = '_____',"
     "seguropro = True,quitado = True,cabina = True,aposentado = True,crateio = '1.5',codimob = '1',"
     "codfin = '1',conjugepro = \"X\",enderecopro = \"X\",numeropro = \"X\",complementopro = \"X\","
     "bairropro = \"X\",cidadepro = \"X\",ufpro = 'X',ceppro = '_____',cpfpro = '_____',rgpro = '_____',"
     "cnpjpro = '_____',emailpro = \"X\",inquilino = \"X\",enderecoinq = \"X\",numeroinq = \"X\","
     "complementoinq = \"X\",bairroinq = \"X\",cidadeinq = \"X\",ufinq = 'X',cepinq = '_____',cpfinq = '_____',"
     "rginq = '_____',cnpjinq = '_____',emailinq = \"X\",dddap = 'X',foneap = 'X',dddpro = 'X',fonepro = 'X',"
     "dddinq = 'X',foneinq = 'X',dddcoml = 'X',fonecoml = 'X',tipcob = 'X',tipbolbco = 'X',"
     "observ = \"X\" Where codigo = '000077'"},
};
}

TEST(Registros, EveryDescriptionWritesItsStatementsAndTheyRun)
{
    const QList<const Registro *> registros = todosRegistros();
    ASSERT_EQ(registros.size(), int(std::size(kEsperados)));
    for (const Esperado &e : kEsperados) {
        SCOPED_TRACE(e.form);
        const Registro *r = nullptr;
        for (const Registro *x : registros)
            if (x->form == QLatin1String(e.form))
                r = x;
        ASSERT_NE(r, nullptr);

        // Every name a statement asks for is the code, a bound control or a value the form computes.
        QStringList conhecidos{QStringLiteral("codigo")};
        for (const Campo &c : r->campos)
            conhecidos << c.controle;
        conhecidos << r->calculados;
        for (const QString &modelo : {r->busca, r->existe, r->contagem, r->lista, r->insere, r->altera, r->apaga})
            for (const QString &nome : nomesDoModelo(modelo))
                EXPECT_TRUE(conhecidos.contains(nome)) << nome.toStdString() << " in " << modelo.toStdString();
        for (const Obrigatorio &o : r->obrigatorios)
            EXPECT_TRUE(conhecidos.contains(o.controle)) << o.controle.toStdString();

        const QHash<QString, QString> v = valoresDeExemplo(*r, QString::fromLatin1(e.codigo));
        EXPECT_EQ(montaSql(r->insere, v), QString::fromUtf8(e.insere));
        EXPECT_EQ(montaSql(r->altera, v), QString::fromUtf8(e.altera));

        // The statements run, in the order a clerk's work sends them.
        TempProgramDir dir;
        dir.makeCondominium(1);
        dir.useInSession(1);
        Connection cn;
        cn.Open(r->conexao == Conexao::Sistema ? session.conSistema : session.conAtiva);
        auto linhas = [&](const QString &sql) {
            int n = 0;
            for (Recordset rs = cn.Execute(sql); !rs.eof(); rs.moveNext())
                ++n;
            return n;
        };
        const int antes = linhas(r->lista);
        cn.Execute(montaSql(r->insere, v));
        EXPECT_EQ(linhas(montaSql(r->busca, v)), 1);
        EXPECT_EQ(linhas(montaSql(r->existe, v)), 1);
        cn.Execute(montaSql(r->altera, v));
        EXPECT_EQ(linhas(r->lista), antes + 1);
        EXPECT_EQ(linhas(r->contagem), 1);
        Recordset lista = cn.Execute(r->lista);
        for (const QString &coluna : r->colunasGrade)
            EXPECT_NO_THROW(lista[coluna]) << coluna.toStdString();
        EXPECT_EQ(r->colunasGrade.size(), r->titulosGrade.size());
        if (!r->relatorio.sql.isEmpty())
            EXPECT_NO_THROW(linhas(montaSql(r->relatorio.sql, {{QStringLiteral("chave"), v.value(QStringLiteral("codigo"))}})));
        cn.Execute(montaSql(r->apaga, v));
        EXPECT_EQ(linhas(montaSql(r->busca, v)), 0);
        cn.Close();
    }
}

TEST(Registros, AStatementNeverGoesOutWithAHole)
{
    EXPECT_EQ(montaSql(QStringLiteral("SELECT * FROM T WHERE a = '{codigo}'"), {{QStringLiteral("codigo"), QStringLiteral("01")}}),
              QStringLiteral("SELECT * FROM T WHERE a = '01'"));
    EXPECT_THROW(montaSql(QStringLiteral("SELECT * FROM T WHERE a = '{codigo}'"), {}), RunFailure);
    EXPECT_EQ(nomesDoModelo(QStringLiteral("{a},{b},{a}")), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

// ---- Every register in the main window's work area, as the program opens it ----
#include "support/scriptedprompter.h"
#include "registerssupport.h"
#include "core/widgets/maskedit.h"
#include "core/widgets/modal.h"
#include "registers/forms/frmAptos.h"
#include "registers/forms/frmBlocos.h"
#include "registers/forms/frmCpj.h"
#include "registers/forms/frmMobra.h"
#include "registers/forms/frmMoradores.h"
#include "registers/forms/frmTEventos.h"
#include "registers/forms/frmTContas.h"
#include "registers/forms/frmTPlanoCtas.h"
#include "registers/forms/frmTTipAp.h"
#include "registers/forms/frmTpveiculos.h"
#include "registers/forms/frmVeiculos.h"
#include "registers/forms/frmUsuarios.h"
#include "registers/forms/frmUsucli.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSet>
#include <QStackedWidget>
#include "core/widgets/keyboard.h"
#include <QTest>
#include <functional>

namespace {
const QList<QPair<QString, std::function<QWidget *()>>> &fabricas()
{
    static const QList<QPair<QString, std::function<QWidget *()>>> f{
        {QStringLiteral("frmBlocos"), [] { return new frmBlocos; }},
        {QStringLiteral("frmTTipAp"), [] { return new frmTTipAp; }},
        {QStringLiteral("frmCpj"), [] { return new frmCpj; }},
        {QStringLiteral("frmUsucli"), [] { return new frmUsucli; }},
        {QStringLiteral("frmUsuarios"), [] { return new frmUsuarios; }},
        {QStringLiteral("frmMoradores"), [] { return new frmMoradores; }},
        {QStringLiteral("frmVeiculos"), [] { return new frmVeiculos; }},
        {QStringLiteral("frmTpveiculos"), [] { return new frmTpveiculos; }},
        {QStringLiteral("frmMobra"), [] { return new frmMobra; }},
        {QStringLiteral("frmTEventos"), [] { return new frmTEventos; }},
        {QStringLiteral("frmTPlanoCtas"), [] { return new frmTPlanoCtas; }},
        {QStringLiteral("frmTContas"), [] { return new frmTContas; }},
        {QStringLiteral("frmAptos"),
         [] {
             // What the units' form reads as it opens: a type and the firms' (Nenhum) rows.
             for (const char *sql : {"INSERT INTO TpAp(codigo,descri,rateio) VALUES('01','Térreo','1')",
                                     "INSERT INTO Pjuridica(codigo,nome,tipo) VALUES(0,'(Nenhum)',0)",
                                     "INSERT INTO Pjuridica(codigo,nome,tipo) VALUES(0,'(Nenhum)',1)"})
                 executaSql(session.conAtiva, QString::fromUtf8(sql));
             return new frmAptos;
         }},
    };
    return f;
}

struct AreaDeTrabalho {
    TempProgramDir dir;
    QMdiArea area;
    AreaDeTrabalho()
    {
        dir.makeCondominium(1);
        dir.useInSession(1);
        session.usuario = QStringLiteral("Administrador");
        // The vehicles' register warns on load when there is no make.
        dir.execAtivo(QStringLiteral("INSERT INTO Tpveiculos(codgrupo,grupo,descri) VALUES('01',True,\"Fiat\")"));
        area.resize(1300, 640);
        area.show();
        area.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&area));
    }
    // Opens the form as the menu does; the cursor stands in its code field.
    QMdiSubWindow *abre(QWidget *form)
    {
        QMdiSubWindow *sub = area.addSubWindow(form);
        sub->setAttribute(Qt::WA_DeleteOnClose);
        sub->show();
        area.setActiveSubWindow(sub);
        QApplication::processEvents();
        return sub;
    }
};
}

TEST(Registros, EveryRegisterIsInTheListOfDescriptions)
{
    QStringList nomes;
    for (const Registro *r : todosRegistros())
        nomes << r->form;
    QStringList fabricados;
    for (const auto &[nome, fabrica] : fabricas())
        fabricados << nome;
    EXPECT_EQ(nomes, fabricados);
}

TEST(Registros, ClosedWithTheCursorInTheCode)
{
    // By the close box, by Sair (as its access key does: the focus stays in
    // the code), and destroyed while the focus is still there.
    enum Como { CaixaDeFechar, Sair, Destruido };
    for (const auto &[nome, fabrica] : fabricas()) {
        for (Como como : {CaixaDeFechar, Sair, Destruido}) {
            SCOPED_TRACE(nome.toStdString() + " " + std::to_string(int(como)));
            AreaDeTrabalho t;
            ScriptedPrompter p;
            QPointer<QMdiSubWindow> sub = t.abre(fabrica());
            QWidget *form = sub->widget();
            ASSERT_EQ(form->objectName(), nome);
            QWidget *codigo = QApplication::focusWidget();
            ASSERT_NE(codigo, nullptr);
            EXPECT_TRUE(codigo->objectName().endsWith(QLatin1String("Codigo"), Qt::CaseInsensitive)) << codigo->objectName().toStdString();
            if (como == CaixaDeFechar)
                sub->close();
            else if (como == Sair)
                form->findChild<QPushButton *>(QStringLiteral("cmdSair"))->click();
            else
                delete sub;
            for (int i = 0; i < 5 && sub; ++i)
                QTest::qWait(10);
            EXPECT_TRUE(sub.isNull());
            EXPECT_TRUE(p.calls.empty());
        }
    }
}

TEST(Registros, ANewFormOpensInFrontOfARegisterWithAnEmptyCode)
{
    AreaDeTrabalho t;
    ScriptedPrompter p;
    t.abre(new frmBlocos);
    // The new form takes the focus as a click in it would.
    auto *form = new frmTTipAp;
    QMdiSubWindow *segundo = t.area.addSubWindow(form);
    segundo->show();
    form->findChild<QWidget *>(QStringLiteral("mskCodigo"))->setFocus(Qt::MouseFocusReason);
    QTest::qWait(20);
    EXPECT_EQ(t.area.activeSubWindow(), segundo);
    EXPECT_TRUE(segundo->isAncestorOf(QApplication::focusWidget()));
}

TEST(Registros, LostFocusRunsOnlyWithinAnOpenForm)
{
    QWidget form, outra;
    auto *a = new QLineEdit(&form);
    auto *b = new QLineEdit(&form);
    auto *c = new QLineEdit(&outra);
    int vezes = 0;
    aoPerderFoco(a, [&vezes] { ++vezes; });
    form.show();
    form.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
    a->setFocus();
    b->setFocus();
    EXPECT_EQ(vezes, 1);  // to another control of its form
    a->setFocus();
    marcaFechando(form);
    b->setFocus();
    EXPECT_EQ(vezes, 1);  // never on a form being closed
    outra.show();
    c->setFocus();
    EXPECT_EQ(vezes, 1);
}

TEST(Registros, EnterAfterANewCodeGoesToTheFieldsAndTabFollowsThem)
{
    for (const auto &[nome, fabrica] : fabricas()) {
        SCOPED_TRACE(nome.toStdString());
        AreaDeTrabalho t;
        ScriptedPrompter p;
        p.answer(vbYes, QStringLiteral("Código Não Cadastrado, Incluir Novo ?"));
        QMdiSubWindow *sub = t.abre(fabrica());
        auto *form = static_cast<RecordForm *>(sub->widget());
        QWidget *codigo = QApplication::focusWidget();
        QTest::keyClicks(codigo, nome == QLatin1String("frmVeiculos") ? QStringLiteral("ABC1234") : QStringLiteral("77"));
        QTest::keyClick(codigo, Qt::Key_Return);
        QTest::qWait(10);
        ASSERT_EQ(form->modo(), 3);
        auto *dados = form->findChild<QWidget *>(QStringLiteral("fraDados"));
        // Every field a clerk types in, once each, before the buttons (an
        // option group is one stop, at whichever of its buttons).
        // A field on another page of a tab strip counts: Tab walks the pages.
        auto aVista = [](QWidget *w) {
            for (QWidget *p = w; p->parentWidget(); p = p->parentWidget())
                if (qobject_cast<QStackedWidget *>(p->parentWidget()))
                    return w->isVisibleTo(p) && p->parentWidget()->isVisible();
            return w->isVisible();
        };
        QSet<QString> esperados;
        for (QWidget *w : dados->findChildren<QWidget *>()) {
            if (w->isEnabled() && aVista(w) && (w->focusPolicy() & Qt::TabFocus) && !qobject_cast<QRadioButton *>(w))
                esperados.insert(w->objectName());
        }
        QSet<QString> visitados;
        QWidget *foco = QApplication::focusWidget();
        ASSERT_TRUE(dados->isAncestorOf(foco)) << (foco ? foco->objectName().toStdString() : "nenhum");
        for (int n = 0; foco && dados->isAncestorOf(foco) && n < 60; ++n) {
            if (!qobject_cast<QRadioButton *>(foco))
                visitados.insert(foco->objectName());
            QTest::keyClick(foco, Qt::Key_Tab);
            foco = QApplication::focusWidget();
        }
        EXPECT_EQ(visitados, esperados);
        form->cmdCancelar_Click();
    }
}

TEST(Registros, TheErrorsListClosedByItsCloseBoxSavesNothing)
{
    AreaDeTrabalho t;
    ScriptedPrompter p;
    p.answer(vbYes, QStringLiteral("Código Não Cadastrado, Incluir Novo ?"));
    auto *form = new frmBlocos;
    t.abre(form);
    form->findChild<MaskEdit *>(QStringLiteral("mskCodigo"))->setText(QStringLiteral("05"));
    form->mskCodigo_LostFocus();
    ASSERT_EQ(form->modo(), 3);
    const ModalHandler antes = setModalHandler([](QDialog &d) {
        d.show();
        d.close();
    });
    StatementLog log;
    form->cmdGravar_Click();  // the description is empty: a fatal finding
    setModalHandler(antes);
    EXPECT_TRUE(log.startingWith(QStringLiteral("INSERT")).isEmpty());
    EXPECT_EQ(form->modo(), 3);
    EXPECT_FALSE(session.cancelaGrava);
    form->cmdCancelar_Click();
}
