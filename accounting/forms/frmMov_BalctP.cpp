#include "accounting/forms/frmMov_BalctP.h"

#include "accounting/mensal.h"
#include "core/conversions.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/datefield.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"
#include "reporting/imprime.h"
#include "ui_frmMov_BalctP.h"

#include <QApplication>
#include <QCloseEvent>
#include <QPushButton>
#include <QTimer>

frmMov_BalctP::frmMov_BalctP(QWidget *parent) : QWidget(parent)
{
    Ui::frmMov_BalctP ui;
    ui.setupUi(this);
    tdbAnomes_ = ui.tdbAnomes;
    tdbPlano_ = ui.tdbPlano;
    cmdTrocames_ = ui.cmdTrocames;
    cmdSair_ = ui.cmdSair;
    tdbAnomes_->setFormato(DateField::MesAno);
    tdbPlano_->modelo()->setTitulos({QStringLiteral("Código"), QStringLiteral("Descrição"), QStringLiteral("Tipo"),
                                     QStringLiteral("Classe"), QStringLiteral("Saldo Anterior"), QStringLiteral("Débito"),
                                     QStringLiteral("Crédito"), QStringLiteral("Saldo Atual")});
    connect(ui.cmdImprimir, &QPushButton::clicked, this, &frmMov_BalctP::cmdImprimir_Click);
    connect(cmdSair_, &QPushButton::clicked, this, [this] { fechaForm(*this); });
    connect(cmdTrocames_, &QPushButton::clicked, this, [this] {
        tdbAnomes_->setEnabled(true);
        tdbAnomes_->setFocus();
    });
    for (QPushButton *b : findChildren<QPushButton *>())
        b->setAutoDefault(false);
    aoPerderFoco(tdbAnomes_, [this] {
        if (tdbAnomes_->isEnabled() && QApplication::focusWidget() != cmdSair_)
            tdbAnomes_LostFocus();
    });
    aplicaTeclado(*this);

    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
    // The count less one, in the system's 16-bit integer.
    const qint16 contas = qint16(cn_.Execute(QStringLiteral("SELECT Count(codigo) as Y FROM plano"))[QStringLiteral("Y")].toInt() - 1);
    if (contas == 0) {
        MsgBox(QStringLiteral("Atenção ! Não há nenhuma conta cadastrada, verifique o Plano de Contas !"));
        cn_.Close();
        marcaDescarregado(*this);
        return;
    }
    Recordset rs = cn_.Execute(QStringLiteral("SELECT mes_movsaldfin FROM parametros"));
    if (rs.eof() || rs[QStringLiteral("mes_movsaldfin")].isNull()) {
        mes_ = 1;
        tdbAnomes_->setData(QDate(2002, 1, 1));
    } else {
        const QDate d = rs[QStringLiteral("mes_movsaldfin")].toDate();
        mes_ = d.month();
        tdbAnomes_->setData(d);
    }
}

frmMov_BalctP::~frmMov_BalctP()
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
}

void frmMov_BalctP::tdbAnomes_LostFocus()
{
    if (tdbAnomes_->vazio() || !tdbAnomes_->data().isValid()) {
        MsgBox(QStringLiteral("É obrigatório fixar um ano/mês válido, este campo não pode ficar vazio !"), vbOKOnly,
               QStringLiteral("Atenção..."));
        QTimer::singleShot(0, tdbAnomes_, [this] {
            if (!fechando(*this))
                tdbAnomes_->setFocus();
        });
        return;
    }
    mes_ = tdbAnomes_->data().month();
    encheLista();
    tdbAnomes_->setEnabled(false);
    tdbPlano_->setFocus();
}

void frmMov_BalctP::encheLista()
{
    const QString picture = QStringLiteral("#,##0.00");
    GradeModel *grade = tdbPlano_->modelo();
    grade->limpa();
    cn_.Execute(QStringLiteral("SELECT Count(codigo) as Y FROM plano"));
    const QStringList colunas{colunaMes(QStringLiteral("sf"), mes_ - 1), colunaMes(QStringLiteral("vd"), mes_),
                              colunaMes(QStringLiteral("vc"), mes_), colunaMes(QStringLiteral("sf"), mes_)};
    for (Recordset rs = cn_.Execute(QStringLiteral("SELECT * FROM plano ORDER BY codigo")); !rs.eof(); rs.moveNext()) {
        QStringList linha{rs[QStringLiteral("codigo")].text().trimmed(), rs[QStringLiteral("nome")].text(),
                          rs[QStringLiteral("tipo")].text(), rs[QStringLiteral("classe")].text()};
        for (const QString &c : colunas)
            linha << formatNumber(rs[c].toDouble(), picture);
        grade->adiciona(linha);
    }
    tdbPlano_->ajustaColunas();
    tdbPlano_->posiciona(0);
}

void frmMov_BalctP::cmdImprimir_Click()
{
    const QString anterior = colunaMes(QStringLiteral("sf"), mes_ - 1), debito = colunaMes(QStringLiteral("vd"), mes_),
                  credito = colunaMes(QStringLiteral("vc"), mes_), atual = colunaMes(QStringLiteral("sf"), mes_);
    // Rows in code order, so that each group follows its synthetic account.
    const QString sql = QStringLiteral("SELECT codigo,nome,tipo,classe,sintetico,") + anterior + u',' + debito + u','
                        + credito + u',' + atual + QStringLiteral(" FROM Plano ORDER BY codigo");
    const QString ano = QString::number(tdbAnomes_->data().year());
    Recordset rs;
    // debitoA and creditoA repeat the movement of the analytic accounts only:
    // their sums are the month's totals (a synthetic account already sums its group).
    ImprimeRelatorio(cn_, rs, sql,
                     {QStringLiteral("Codigo"), QStringLiteral("Nome"), QStringLiteral("Tipo"), QStringLiteral("Classe"),
                      QStringLiteral("Sintetico"), QStringLiteral("sante"), QStringLiteral("debit"), QStringLiteral("credit"),
                      QStringLiteral("satual"), QStringLiteral("debitoA"), QStringLiteral("creditoA")},
                     QStringLiteral("Balancete.rpt"), QStringLiteral("Balancete"),
                     {{QStringLiteral("Caixa"), QStringLiteral("N")},
                      {QStringLiteral("Titu"), QStringLiteral("Balancete de ") + NomeMes(mes_) + u'/' + ano}},
                     [=](const Recordset &r) {
                         const bool sintetico = r[QStringLiteral("sintetico")].toBool();
                         return QStringList{r[QStringLiteral("codigo")].text().trimmed(), r[QStringLiteral("nome")].text(),
                                            r[QStringLiteral("tipo")].text(), r[QStringLiteral("classe")].text(),
                                            r[QStringLiteral("sintetico")].text(), r[anterior].text(), r[debito].text(),
                                            r[credito].text(), r[atual].text(),
                                            sintetico ? QString() : r[debito].text(),
                                            sintetico ? QString() : r[credito].text()};
                     });
}

void frmMov_BalctP::closeEvent(QCloseEvent *event)
{
    marcaFechando(*this);
    if (cn_.State() == 1)
        cn_.Close();
    event->accept();
}
