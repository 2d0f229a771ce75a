#include "billing/forms/frmParametro.h"

#include "billing/emissao.h"
#include "billing/parametros.h"
#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/forms/frmErros.h"
#include "core/forms/mdiHabitarium.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "ui_frmParametro.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLocale>
#include <QPointer>
#include <QRegularExpressionValidator>
#include <QTimer>

namespace {

const QString kAtencao = QStringLiteral("Atenção...");

// The bar is repainted and the queued paint events run at most this often:
// often enough for the eye, rare enough to cost nothing beside the run.
constexpr int kPinturaMs = 40;

template <class T>
T *filho(QWidget *form, const QString &nome)
{
    return form->findChild<T *>(nome);
}

} // namespace

frmParametro::frmParametro(QWidget *parent) : QDialog(parent), ui_(std::make_unique<Ui::frmParametro>())
{
    ui_->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetMinimumSize);  // never narrower than its fields
    ui_->tdbVencto->setFormato(DateField::MesAno);
    ui_->cmbOrdem->addItems({QStringLiteral("Alfabética"), QStringLiteral("Numérica"), QStringLiteral("Seletiva")});
    ui_->cmbTsel->addItems(
        {QStringLiteral("Todos"), QStringLiteral("Ativos"), QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")});
    ui_->txtNvias->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("\\d*")), this));
    ui_->txtNvias->setText(QStringLiteral("1"));
    ui_->prgEmissao->setRange(0, 1);
    ui_->prgEmissao->setValue(0);

    connect(ui_->cmdGravar, &QPushButton::clicked, this, &frmParametro::cmdGravar_Click);
    connect(ui_->cmdInicia, &QPushButton::clicked, this, &frmParametro::cmdInicia_Click);
    connect(ui_->cmdSair, &QPushButton::clicked, this, &frmParametro::cmdSair_Click);
    aplicaTeclado(*this);

    // A fixed event above 0 must exist; the field keeps the focus until it does.
    for (int i = 0; i < 4; ++i) {
        auto *evento = filho<MaskEdit>(this, QStringLiteral("mskEvnt%1").arg(i));
        aoPerderFoco(evento, [this, evento] {
            if (!confereEventoFixo(cn_, evento->textoPuro())) {
                evento->setFocus();
                evento->selectAll();
            }
        });
    }
    aoPerderFoco(ui_->txtNvias, [this] {
        if (ui_->txtNvias->text().isEmpty())
            ui_->txtNvias->setFocus();
    });

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    mostra(leParametros(cn_));
}

frmParametro::~frmParametro()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void frmParametro::mostra(const ParametrosEmissao &p)
{
    ui_->mskNemissao->setText(p.fnemis);
    ui_->tdbEmissao->setText(p.fdemis);
    ui_->tdbVencto->setText(p.fmvcto);
    ui_->mskNrRecibo->setText(p.fnreci);
    ui_->cmbOrdem->setCurrentText(legendaDaOrdem(p.fordem));
    const QString selecao = legendaDaSelecao(p.fsempr);
    if (ui_->cmbTsel->findText(selecao) < 0)
        ui_->cmbTsel->addItem(selecao);  // a stored 'I' shows as "Inativos"
    ui_->cmbTsel->setCurrentText(selecao);
    ui_->tdbPir->setValor(p.fpimpr);
    ui_->txtTit0->setText(p.ftitu1);
    ui_->txtTit1->setText(p.ftitu2);
    for (int i = 0; i < 3; ++i)
        filho<NumberField>(this, QStringLiteral("tdbRefer%1").arg(i))->setValor(p.fvref[size_t(i)].toDouble());
    ui_->chkRetif->setChecked(p.fretit);
    ui_->chkSpool->setChecked(p.fspool);
    ui_->chkEAuto->setChecked(p.fautom);
    ui_->chkHonora->setChecked(p.fhonor);
    ui_->chkPreDigit->setChecked(p.fpdigi);
    for (int i = 0; i < 4; ++i) {
        filho<MaskEdit>(this, QStringLiteral("mskEvnt%1").arg(i))->setText(p.fevnt[size_t(i)]);
        filho<NumberField>(this, QStringLiteral("tdbVefx%1").arg(i))->setValor(p.fvlev[size_t(i)]);
        filho<QLineEdit>(this, QStringLiteral("txtComp%1").arg(i))->setText(p.fcpev[size_t(i)]);
    }
    ui_->mskEvTc->setText(p.fEvTc);
    ui_->txtCompTc->setText(p.fCpTc);
    ui_->mskEvCb->setText(p.fEvCb);
    ui_->txtCompCb->setText(p.fCpCb);
    ui_->mskEvFr->setText(p.fEvFr);
    ui_->txtCompFr->setText(p.fCpfr);
    ui_->txtMsg->setText(p.fmsg);
}

ParametrosEmissao frmParametro::lidos() const
{
    ParametrosEmissao p;
    p.fnemis = ui_->mskNemissao->text().trimmed();
    p.fdemis = ui_->tdbEmissao->textoMascarado();
    p.fmvcto = ui_->tdbVencto->textoMascarado();
    p.fnreci = ZeroEsq(ui_->mskNrRecibo->textoPuro(), 6);
    p.fordem = ordemDaLegenda(ui_->cmbOrdem->currentText());
    p.fsempr = selecaoDaLegenda(ui_->cmbTsel->currentText());
    if (p.fsempr == QLatin1String("Inativos"))
        p.fsempr = QStringLiteral("I");
    p.fpimpr = ui_->tdbPir->valor();
    p.ftitu1 = ui_->txtTit0->text();
    p.ftitu2 = ui_->txtTit1->text();
    for (int i = 0; i < 3; ++i)
        p.fvref[size_t(i)] =
            Money::fromDouble(findChild<NumberField *>(QStringLiteral("tdbRefer%1").arg(i))->valor());
    p.fretit = ui_->chkRetif->isChecked();
    p.fspool = ui_->chkSpool->isChecked();
    p.fautom = ui_->chkEAuto->isChecked();
    p.fhonor = ui_->chkHonora->isChecked();
    p.fpdigi = ui_->chkPreDigit->isChecked();
    for (int i = 0; i < 4; ++i) {
        p.fevnt[size_t(i)] = findChild<MaskEdit *>(QStringLiteral("mskEvnt%1").arg(i))->textoPuro();
        p.fvlev[size_t(i)] = findChild<NumberField *>(QStringLiteral("tdbVefx%1").arg(i))->valor();
        p.fcpev[size_t(i)] = findChild<QLineEdit *>(QStringLiteral("txtComp%1").arg(i))->text();
    }
    // The fee events are kept padded to three digits, as they are shown.
    auto evento = [](const MaskEdit *m) {
        const QString t = m->textoPuro();
        return val(t) > 0 ? ZeroEsq(t, 3) : t;
    };
    p.fEvTc = evento(ui_->mskEvTc);
    p.fCpTc = ui_->txtCompTc->text();
    p.fEvCb = evento(ui_->mskEvCb);
    p.fCpCb = ui_->txtCompCb->text();
    p.fEvFr = evento(ui_->mskEvFr);
    p.fCpfr = ui_->txtCompFr->text();
    p.fmsg = ui_->txtMsg->text();
    return p;
}

// The date fields keep the focus on a date that does not exist, but a click on
// a button still reaches it: a month "13/2008" must not be saved.
bool frmParametro::confereCampos()
{
    if (!ui_->tdbEmissao->valido()) {
        MsgBox(QStringLiteral("Data da emissão inválida !"), vbExclamation, kAtencao);
        ui_->tdbEmissao->setFocus();
        return false;
    }
    if (!ui_->tdbVencto->valido()) {
        MsgBox(QStringLiteral("Mês/Ano de vencimento inválido !"), vbExclamation, kAtencao);
        ui_->tdbVencto->setFocus();
        return false;
    }
    return true;
}

bool frmParametro::grava(bool focoNoRecibo)
{
    if (!guardaOpcoes(ui_->chkEAuto->isChecked(), ordemDaLegenda(ui_->cmbOrdem->currentText()),
                      ui_->chkRetif->isChecked())) {
        ui_->chkEAuto->setFocus();
        return false;
    }
    if (!confereCampos())
        return false;
    const std::vector<ErroGravacao> erros = gravaParametros(cn_, lidos());
    if (!erros.empty()) {
        LimpaErros();
        for (const ErroGravacao &e : erros)
            AnotaErro(e.tipo, e.mensagem);
        session.temErros = true;
        // The number may be skipped ahead, never reused: there is nothing to
        // choose, so the list offers only OK.
        frmErros dlg(this);
        dlg.semEscolha(QStringLiteral("Os parâmetros não foram gravados: informe um número igual ou maior !"));
        showModal(dlg);
        session.cancelaGrava = false;
        if (focoNoRecibo)
            ui_->mskNrRecibo->setFocus();
        return false;
    }
    return true;
}

void frmParametro::cmdGravar_Click()
{
    if (grava(false))
        ui_->mskNemissao->setFocus();
}

void frmParametro::cmdInicia_Click()
{
    if (!grava(true))
        return;
    const bool retificacao = ui_->chkRetif->isChecked();
    if (!direitoDeIniciar(retificacao, session.usuario))
        return;
    if (ui_->chkEAuto->isChecked()) {
        emiteAutomatico();
        return;
    }
    // The manual screen opens once this dialog has closed.
    QPointer<mdiHabitarium> mdi = qobject_cast<mdiHabitarium *>(parentWidget());
    marcaFechando(*this);
    accept();
    if (mdi)
        QTimer::singleShot(0, mdi, [mdi] {
            if (mdi)
                mdi->abreForm(QStringLiteral("frmRecibos"));
        });
}

// The run keeps the window painting: the engine reports each unit, and the bar
// moves and the queued paint events run every few milliseconds. Clicks and keys
// wait until the run ends, and the buttons are off meanwhile.
void frmParametro::emiteAutomatico()
{
    const QList<QPushButton *> botoes{ui_->cmdGravar, ui_->cmdInicia, ui_->cmdSair};
    for (QPushButton *b : botoes)
        b->setEnabled(false);
    QElapsedTimer relogio;
    relogio.start();
    ResultadoEmissao r;
    {
        Ampulheta ampulheta;
        r = emissaoAutomatica(cn_, lidos(), [&](const Progress &p) {
            if (p.value != 0 && p.value != p.max && relogio.elapsed() < kPinturaMs)
                return;
            relogio.restart();
            ui_->prgEmissao->setRange(0, std::max(p.max, 1));
            ui_->prgEmissao->setValue(p.value);
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        });
    }
    for (QPushButton *b : botoes)
        b->setEnabled(true);
    if (!r.iniciada)
        return;
    if (!r.fnreci.isEmpty())
        ui_->mskNrRecibo->setText(r.fnreci);
    QString texto = QStringLiteral("Emissão automática finalizada: %1 recibo(s) emitido(s).")
                        .arg(QLocale().toString(r.emitidos));
    if (r.interrompida)
        texto += QStringLiteral("\nUm apartamento da lista não foi encontrado; os seguintes não foram emitidos.");
    MsgBox(texto, vbInformation, kAtencao);
}

void frmParametro::cmdSair_Click()
{
    marcaFechando(*this);
    reject();
}
