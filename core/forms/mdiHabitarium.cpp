#include "core/forms/mdiHabitarium.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/forms/formcatalog.h"
#include "core/forms/frmAtImpr.h"
#include "core/forms/frmAtempr.h"
#include "core/forms/frmInstalacao.h"
#include "core/forms/frmSenha.h"
#include "core/forms/icones.h"
#include "core/installation.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/startup.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QPointer>
#include <QToolBar>
#include <memory>

enum class Acao {
    Topo,        // a menu of the bar
    Submenu,     // a menu inside another
    Separador,
    Form,        // opens a form of the catalog
    Morta,       // kept on the menu with no behaviour at all
    Sair,
    Musu,
    Atemp,
    Cascata,
};

struct mdiHabitarium::ItemMenu {
    const char *nome;
    const char *titulo;
    const char *pai;
    Acao acao;
    const char *form = nullptr;
    const char *direito = nullptr;   // column of Usuarios tested at each click
    const char *mensagem = nullptr;  // shown when the right is false
};

namespace {
const char *const kPesquisas = "Usuário não autorizado a efetuar pesquisas !";
}

// The whole menu, in order. Entries marked Morta are the system's dead entries.
static const mdiHabitarium::ItemMenu kMenu[] = {
    {"mnuArquivo", "&Arquivos", nullptr, Acao::Topo},
    {"mnuApart", "A&partamentos", "mnuArquivo", Acao::Form, "frmAptos"},
    {"mnuAreas", "Á&reas Comuns", "mnuArquivo", Acao::Morta},
    {"mnuBlocos", "&Blocos", "mnuArquivo", Acao::Form, "frmBlocos"},
    {"mnuMao", "Mã&o de Obra", "mnuArquivo", Acao::Form, "frmMobra"},
    {"mnuMoradores", "&Moradores", "mnuArquivo", Acao::Form, "frmMoradores"},
    {"mnuPj", "&Pessoa Jurídica", "mnuArquivo", Acao::Form, "frmCpj"},
    {"mnuVeiculos", "&Veículos", "mnuArquivo", Acao::Form, "frmVeiculos"},
    {"mnuSep2", "", "mnuArquivo", Acao::Separador},
    {"mnuSair", "&Sair", "mnuArquivo", Acao::Sair},

    {"mnuMovimento", "&Movimento", nullptr, Acao::Topo},
    {"mnuDigitpo", "Digitação &Previsão Orçamentária", "mnuMovimento", Acao::Form, "frmMovpo"},
    {"mnuSepM", "", "mnuMovimento", Acao::Separador},
    {"mnuAtualizaS", "&Atualização de Saldos", "mnuMovimento", Acao::Form, "frmMov_Atualiza"},
    {"mnuDigitmov", "&Digitação Movimento", "mnuMovimento", Acao::Form, "frmMov"},
    {"mnuSaldini", "&Digitação de Saldos Iniciais", "mnuMovimento", Acao::Form, "frmMovSaldini"},
    {"mnuBalanceteP", "&Balancete Plano de Contas", "mnuMovimento", Acao::Form, "frmMov_BalctP"},
    {"mnuGerarC", "&Geração Novo Exercício", "mnuMovimento", Acao::Morta},

    {"mnuDiv", "&Diversos", nullptr, Acao::Topo},
    {"mnuInfracao", "&Auto de Infração", "mnuDiv", Acao::Morta},
    {"mnuPesqfin", "&Pesquisas Financeiras", "mnuDiv", Acao::Form, "frmPesqfin", "cfcon",
     "Usuário não autorizado a efetuar pesquisas financeiras !"},
    {"mnuRecibos", "&Recibos", "mnuDiv", Acao::Submenu},
    {"mnuAjhon", "&Ajuste de Taxas", "mnuRecibos", Acao::Form, "frmAjTxVcto", "cfadi",
     "Usuário não autorizado a ajustar taxas !"},
    {"mnuBaixa", "&Baixa/Alteração", "mnuRecibos", Acao::Form, "frmRecBaixa", "cfcon", kPesquisas},
    {"mnuEmis", "&Emissão", "mnuRecibos", Acao::Form, "frmParametro"},
    {"mnuSpool", "&Spool (2º Via)", "mnuRecibos", Acao::Form, "frmSpool", "cfcon", kPesquisas},
    {"mnuCartas", "&Cartas", "mnuDiv", Acao::Submenu},
    {"mnuCCobranca", "Cobrança", "mnuCartas", Acao::Form, "frmCarta_Cob"},
    {"mnuDiversos", "Diversos", "mnuCartas", Acao::Morta},

    {"mnuRel", "&Relatórios", nullptr, Acao::Topo},
    {"mnuConaRec", "&Condomínio a Receber", "mnuRel", Acao::Form, "frmRCondRec", "cfcon", kPesquisas},
    {"mnuConCob", "C&ondomínio por Cobradora", "mnuRel", Acao::Form, "frmRCondCobr", "cfcon", kPesquisas},
    {"mnuConBanco", "Co&ndomínio por Banco", "mnuRel", Acao::Form, "frmConBanco"},
    {"mnuRAnul", "&Relação de Recibos", "mnuRel", Acao::Form, "frmRRecAnual", "cfcon", kPesquisas},
    {"mnuRelEnd", "Relação de &Endereços", "mnuRel", Acao::Form, "frmRelEnd"},
    {"mnuSepR", "", "mnuRel", Acao::Separador},
    {"mnuBalancetes", "&Balancetes", "mnuRel", Acao::Form, "frmRBalancetes"},
    {"mnuRazao", "R&azão", "mnuRel", Acao::Form, "frmRRazao"},
    {"mnuPorc", "&Previsões Orçamentárias", "mnuRel", Acao::Morta},
    {"mnuLancamentos", "Re&lação de Lançamentos", "mnuRel", Acao::Form, "frmRLanctos"},
    {"mnuSepR3", "", "mnuRel", Acao::Separador},
    {"mnuRAptos", "R&elação de Apartamentos", "mnuRel", Acao::Form, "frmRAptos"},
    {"mnuEleitor", "&Título de Eleitor", "mnuRel", Acao::Form, "frmTEleitor"},
    {"mnuRTelef", "Listagem &Telefônica", "mnuRel", Acao::Form, "frmRTelefonica"},
    {"mnuSepR2", "", "mnuRel", Acao::Separador},
    {"mnuRelArq", "&Relatórios de Arquivos", "mnuRel", Acao::Form, "frmRelatArq"},

    {"mnuTabelas", "&Tabelas", nullptr, Acao::Topo},
    {"mnuContas", "&Contas", "mnuTabelas", Acao::Form, "frmTContas"},
    {"mnuEventos", "&Eventos", "mnuTabelas", Acao::Form, "frmTEventos", "cfcon", kPesquisas},
    {"mnuMarcas", "&Marcas/Modelos (Veículos)", "mnuTabelas", Acao::Form, "frmTpveiculos"},
    {"mnuPlano", "&Plano de Contas", "mnuTabelas", Acao::Form, "frmTPlanoCtas"},
    {"mnuTipAp", "&Tipos de Apartamentos", "mnuTabelas", Acao::Form, "frmTTipAp"},

    {"mnuIntegra", "&Integrações", nullptr, Acao::Topo},
    {"mnuBcosDiversos", "Bancos &Diversos - Novo Modelo", "mnuIntegra", Acao::Form, "frmBcoDiversos"},
    {"mnuBoleto", "Boletos", "mnuIntegra", Acao::Form, "frmBoleto"},
    {"mnuSepb", "", "mnuIntegra", Acao::Separador},
    {"mnuGtexto", "&Geração de Textos", "mnuIntegra", Acao::Form, "frmCriaTxt"},

    {"mnuEtiq", "&Etiquetas", nullptr, Acao::Topo},
    {"mnuEtiqNormal", "&Normal", "mnuEtiq", Acao::Form, "frmNormal"},
    {"mnuEtiqPadrao", "&Padrão", "mnuEtiq", Acao::Form, "frmPadrao"},

    {"mnuJanelas", "&Janelas", nullptr, Acao::Topo},
    {"mnuCascata", "&Cascata", "mnuJanelas", Acao::Cascata},

    {"mnuConfig", "&Config", nullptr, Acao::Topo},
    {"mnuCondominios", "&Condomínios", "mnuConfig", Acao::Form, "frmUsucli"},
    {"mnuUsuarios", "&Usuários", "mnuConfig", Acao::Form, "frmUsuarios"},
    {"mnuSep", "", "mnuConfig", Acao::Separador},
    {"mnuMusu", "&Mudar Usuário", "mnuConfig", Acao::Musu},
    {"mnuAtemp", "&Ativar Condomínio", "mnuConfig", Acao::Atemp},

    {"mnuAjuda", "A&juda", nullptr, Acao::Topo},
    {"mnuAjuste", "&Ajuste", "mnuAjuda", Acao::Form, "frmAjuste"},
    {"mnuAjUtil", "Ajustes e &Utilitários", "mnuAjuda", Acao::Form, "frmAjUtilitarios"},
    {"mnuSep1", "", "mnuAjuda", Acao::Separador},
    {"mnuSobre", "&Sobre", "mnuAjuda", Acao::Form, "frmSobre"},
};

// The toolbar: the menu entry each button repeats (nullptr: no action), and its tip.
struct BotaoBarra {
    const char *menu;
    const char *dica;
};
static const BotaoBarra kBarra[14] = {
    {nullptr, "Condomínio"},
    {"mnuApart", "Apartamentos"},
    {"mnuBlocos", "Blocos"},
    {"mnuMoradores", "Moradores"},
    {"mnuVeiculos", "Veículos"},
    {"mnuMao", "Mão de Obra"},
    {"mnuPj", "Pessoa Jurídica"},
    {nullptr, "Calendário"},
    {"mnuEmis", "Emissão de Recibos"},
    {"mnuDigitmov", "Digitação Movimento"},
    {nullptr, "Gráficos"},
    {"mnuMusu", "Mudar Usuário"},
    {"mnuAtemp", "Ativar Condomínio"},
    {nullptr, "Impressora Ativa"},
};

static const char *const kSoAdministrador[] = {"mnuCondominios", "mnuAjuste"};
static const char *const kSoUsuario[] = {"mnuApart", "mnuBlocos", "mnuMao",   "mnuMoradores", "mnuPj",
                                         "mnuVeiculos", "mnuDiv", "mnuRecibos", "mnuRel",   "mnuMovimento",
                                         "mnuCartas", "mnuTabelas", "mnuAtemp", "mnuIntegra", "mnuEtiq"};

mdiHabitarium::mdiHabitarium(QWidget *parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("mdiHabitarium"));
    setWindowIcon(iconeBarra(1));
    area_ = new QMdiArea(this);
    area_->setObjectName(QStringLiteral("areaMdi"));
    area_->setBackground(QColor(104, 120, 140));
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area_);
    montaMenu();
    montaBarra();
    resize(1024, 720);
    qApp->installEventFilter(this);
}

// The control of the active form whose access key (the letter after '&' in
// its caption, or in the caption of its label) is this Alt+key: a button, or
// the field a label names. nullptr when the form has none, or no form of this
// window is active.
QWidget *mdiHabitarium::alvoDaTecla(const QKeyEvent &key) const
{
    if (key.modifiers() != Qt::AltModifier || key.key() < Qt::Key_0 || key.key() > Qt::Key_Z
        || QApplication::activeWindow() != this || QApplication::activePopupWidget())
        return nullptr;
    const QMdiSubWindow *sub = area_->activeSubWindow();
    QWidget *form = sub ? sub->widget() : nullptr;
    if (!form)
        return nullptr;
    const QKeySequence tecla(QKeyCombination(Qt::AltModifier, Qt::Key(key.key())));
    const auto pronto = [](const QWidget *w) { return w && w->isVisible() && w->isEnabled(); };
    for (QAbstractButton *b : form->findChildren<QAbstractButton *>())
        if (pronto(b) && QKeySequence::mnemonic(b->text()) == tecla)
            return b;
    for (QLabel *l : form->findChildren<QLabel *>())
        if (pronto(l) && pronto(l->buddy()) && QKeySequence::mnemonic(l->text()) == tecla)
            return l->buddy();
    return nullptr;
}

bool mdiHabitarium::eventFilter(QObject *watched, QEvent *event)
{
    // The form's key is claimed before the menu bar's shortcut is looked for,
    // then acted on as a click: the field left first (its lost focus runs),
    // then the button pressed.
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QMainWindow::eventFilter(watched, event);
    auto *key = static_cast<QKeyEvent *>(event);
    QWidget *alvo = alvoDaTecla(*key);
    if (!alvo)
        return QMainWindow::eventFilter(watched, event);
    key->accept();
    if (event->type() == QEvent::KeyPress) {
        QPointer<QWidget> guarda(alvo);
        alvo->setFocus(Qt::ShortcutFocusReason);
        if (auto *b = qobject_cast<QAbstractButton *>(guarda.data()); b && b->isEnabled() && b->isVisible())
            b->click();
    }
    return true;
}

void mdiHabitarium::montaMenu()
{
    for (const ItemMenu &item : kMenu) {
        const QString nome = QString::fromLatin1(item.nome);
        const QString titulo = QString::fromUtf8(item.titulo);
        QMenu *pai = item.pai ? findChild<QMenu *>(QString::fromLatin1(item.pai)) : nullptr;
        switch (item.acao) {
        case Acao::Topo:
        case Acao::Submenu: {
            QMenu *menu = pai ? pai->addMenu(titulo) : menuBar()->addMenu(titulo);
            menu->setObjectName(nome);
            menu->menuAction()->setObjectName(nome);
            if (nome == QLatin1String("mnuJanelas")) {
                mnuJanelas_ = menu;
                connect(menu, &QMenu::aboutToShow, this, &mdiHabitarium::montaJanelas);
            }
            break;
        }
        case Acao::Separador:
            pai->addSeparator()->setObjectName(nome);
            break;
        default: {
            QAction *a = pai->addAction(titulo);
            a->setObjectName(nome);
            // What the entry does, for the check that each one reaches the catalog.
            if (item.form)
                a->setProperty("form", QString::fromLatin1(item.form));
            a->setProperty("morta", item.acao == Acao::Morta);
            if (item.acao != Acao::Morta)
                connect(a, &QAction::triggered, this, [this, &item] { executa(item); });
            break;
        }
        }
    }
}

void mdiHabitarium::montaBarra()
{
    tobPrincipal_ = addToolBar(QStringLiteral("Principal"));
    tobPrincipal_->setObjectName(QStringLiteral("tobPrincipal"));
    tobPrincipal_->setIconSize(QSize(32, 32));
    tobPrincipal_->setMovable(false);
    for (int n = 1; n <= 14; ++n) {
        const BotaoBarra &b = kBarra[n - 1];
        QAction *a = tobPrincipal_->addAction(iconeBarra(n), QString::fromUtf8(b.dica));
        a->setObjectName(QStringLiteral("tob%1").arg(n, 2, 10, QLatin1Char('0')));
        a->setProperty("morta", !b.menu && n != 14);
        if (b.menu) {
            const QString menu = QString::fromLatin1(b.menu);
            a->setProperty("menu", menu);
            connect(a, &QAction::triggered, this, [this, menu] {
                if (QAction *entry = acao(menu))
                    entry->trigger();
            });
        } else if (n == 14) {
            a->setProperty("form", QStringLiteral("frmAtImpr"));
            connect(a, &QAction::triggered, this, [this] { abreForm(QStringLiteral("frmAtImpr")); });
        }
        if (n == 1 || n == 8 || n == 11 || n == 12)
            tobPrincipal_->addSeparator();
    }
}

QAction *mdiHabitarium::acao(const QString &name) const
{
    for (QAction *a : findChildren<QAction *>(name))
        return a;
    return nullptr;
}

// The original handler only put the pointer back; we also say why the
// function did not open, so that nothing fails without a word.
static void avisaFalhaAoAbrir(const QString &motivo)
{
    MsgBox(QStringLiteral("Não foi possível abrir esta função.\n\n") + motivo, vbExclamation, QStringLiteral("Atenção"));
}

void mdiHabitarium::executa(const ItemMenu &item)
{
    switch (item.acao) {
    case Acao::Sair:
        mnuSair_Click();
        return;
    case Acao::Musu:
        mnuMusu_Click();
        return;
    case Acao::Atemp:
        mnuAtemp_Click();
        return;
    case Acao::Cascata:
        area_->cascadeSubWindows();
        return;
    case Acao::Form:
        break;
    default:
        return;
    }
    const QString form = QString::fromLatin1(item.form);
    if (item.direito) {
        bool permitido = false;
        try {
            Ampulheta ampulheta;
            permitido = TemDireito(QString::fromLatin1(item.direito));
        } catch (const DatabaseError &e) {
            avisaFalhaAoAbrir(e.message());
            return;
        } catch (const RunFailure &e) {
            avisaFalhaAoAbrir(e.message());
            return;
        }
        if (!permitido) {
            MsgBox(QString::fromUtf8(item.mensagem), vbCritical, QStringLiteral("Atenção..."));
            return;
        }
    }
    abreForm(form);
}

QWidget *mdiHabitarium::abreForm(const QString &formName)
{
    for (QMdiSubWindow *sub : area_->subWindowList()) {
        if (sub->widget() && sub->widget()->objectName() == formName) {
            sub->showNormal();
            area_->setActiveSubWindow(sub);
            return sub->widget();
        }
    }
    const FormEntry *entry = findForm(formName);
    if (!entry) {  // a name the catalog lacks: the menu test keeps this from happening
        avisaFalhaAoAbrir(QStringLiteral("O formulário ") + formName + QStringLiteral(" não existe nesta instalação."));
        return nullptr;
    }
    // A form whose load fails (its file is missing, a statement fails) is not
    // opened: the handler puts the pointer back, says why, and the program goes on.
    std::unique_ptr<QWidget> form;
    try {
        Ampulheta ampulheta;
        form.reset(entry->make());
    } catch (const DatabaseError &e) {
        avisaFalhaAoAbrir(e.message());
        return nullptr;
    } catch (const RunFailure &e) {
        avisaFalhaAoAbrir(e.message());
        return nullptr;
    }
    if (descarregado(*form))
        return nullptr;
    switch (entry->kind) {
    case FormKind::Dialog: {
        auto *dialog = qobject_cast<QDialog *>(form.get());
        if (dialog) {
            dialog->setParent(this, Qt::Dialog);
            showModal(*dialog);
        }
        return nullptr;
    }
    case FormKind::Window:
        form->setAttribute(Qt::WA_DeleteOnClose);
        form->show();
        return form.release();
    case FormKind::Child:
        break;
    }
    QWidget *child = form.release();
    child->setAttribute(Qt::WA_DeleteOnClose);
    QMdiSubWindow *sub = area_->addSubWindow(child);
    sub->setAttribute(Qt::WA_DeleteOnClose);
    sub->setWindowIcon(windowIcon());
    sub->show();
    child->setFocus();
    return child;
}

void mdiHabitarium::montaJanelas()
{
    for (QAction *a : mnuJanelas_->actions())
        if (a->objectName() != QLatin1String("mnuCascata"))
            mnuJanelas_->removeAction(a), a->deleteLater();
    const QList<QMdiSubWindow *> janelas = area_->subWindowList();
    if (janelas.isEmpty())
        return;
    mnuJanelas_->addSeparator();
    int n = 0;
    for (QMdiSubWindow *sub : janelas) {
        ++n;
        const QString texto = (n < 10 ? QStringLiteral("&%1 ").arg(n) : QStringLiteral("%1 ").arg(n)) + sub->windowTitle();
        QAction *a = mnuJanelas_->addAction(texto);
        a->setCheckable(true);
        a->setChecked(sub == area_->activeSubWindow());
        connect(a, &QAction::triggered, this, [this, sub] { area_->setActiveSubWindow(sub); });
    }
}

void mdiHabitarium::aplicaAdministrador()
{
    for (const char *nome : kSoAdministrador)
        acao(QString::fromLatin1(nome))->setEnabled(true);
    for (const char *nome : kSoUsuario)
        acao(QString::fromLatin1(nome))->setEnabled(false);
    acao(QStringLiteral("mnuAreas"))->setEnabled(false);
    for (QAction *b : tobPrincipal_->actions())
        if (b->objectName().startsWith(QLatin1String("tob")))
            b->setEnabled(false);
    acao(QStringLiteral("tob12"))->setEnabled(true);
}

void mdiHabitarium::aplicaUsuario()
{
    for (const char *nome : kSoAdministrador)
        acao(QString::fromLatin1(nome))->setEnabled(false);
    for (const char *nome : kSoUsuario)
        acao(QString::fromLatin1(nome))->setEnabled(true);
    // mnuAreas is left as it stands: an administrator's login before keeps it off.
    for (QAction *b : tobPrincipal_->actions())
        if (b->objectName().startsWith(QLatin1String("tob")))
            b->setEnabled(true);
}

void mdiHabitarium::Carrega(const QString &programDir)
{
    QString sysPath = QDir::fromNativeSeparators(programDir);
    if (!sysPath.endsWith(QLatin1Char('/')))
        sysPath += QLatin1Char('/');
    session.sysPath = sysPath;
    VerificaArquivos(sysPath);

    InstallationSettings settings;
    if (!readInstallationSettings(sysPath, settings)) {
        frmInstalacao instalacao(this);
        showModal(instalacao);
        if (!readInstallationSettings(sysPath, settings))
            EndProgram();
    }
    applyInstallationSettings(settings);
    setWindowTitle(tituloInicial());
    session.confirmaSaida = true;
    // PEOpenEngine: the report engine opens nothing; there is no result to ignore.
    session.cancelaGrava = false;
    EntrarSistema();
    session.cancelaGrava = false;
    ponteiroNormal();
}

void mdiHabitarium::EntrarSistema()
{
    {
        frmSenha senha(this);
        showModal(senha);
    }
    if (session.usuario == QLatin1String("Administrador")) {
        aplicaAdministrador();
        session.empat = 0;
        session.nomeEmp.clear();
        setWindowTitle(tituloAdministrador());
        return;
    }
    aplicaUsuario();
    setWindowTitle(tituloUsuario());
    if (session.empat == 0)
        mnuAtemp_Click();
    PreparaArquivoAtivo([this] { mnuAtemp_Click(); });
}

void mdiHabitarium::mnuAtemp_Click()
{
    {
        frmAtempr atempr(this);
        showModal(atempr);
    }
    setWindowTitle(tituloUsuario());
}

void mdiHabitarium::mnuMusu_Click()
{
    Ampulheta ampulheta;
    EntrarSistema();
}

void mdiHabitarium::mnuSair_Click()
{
    if (MsgBox(QStringLiteral("Você Quer Realmente Sair ?"), vbYesNo + vbQuestion + vbDefaultButton2,
               QStringLiteral("Mensagem de Saída"))
        == vbYes)
        EndProgram();
}

void mdiHabitarium::closeEvent(QCloseEvent *event)
{
    if (!session.confirmaSaida
        && MsgBox(QStringLiteral("Você Quer Realmente Sair ?"), vbYesNo + vbQuestion + vbDefaultButton2,
                  QStringLiteral("Mensagem de Saída"))
            != vbYes) {
        event->ignore();
        return;
    }
    // PECloseEngine: nothing to close. mnuSair ends without reaching here.
    event->accept();
}
