#include "core/forms/frmErros.h"

#include "core/anotaerro.h"
#include "core/session.h"
#include "core/widgets/keyboard.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

frmErros::frmErros(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmErros"));
    setWindowTitle(QStringLiteral("Erros !!!"));

    tdbErros_ = new QTableWidget(this);
    tdbErros_->setObjectName(QStringLiteral("tdbErros"));
    tdbErros_->setColumnCount(3);
    tdbErros_->setHorizontalHeaderLabels({QStringLiteral("Nr."), QStringLiteral("Tipo "), QStringLiteral("Mensagem")});
    tdbErros_->verticalHeader()->hide();
    tdbErros_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tdbErros_->setSelectionBehavior(QAbstractItemView::SelectRows);
    tdbErros_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    tdbErros_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    tdbErros_->horizontalHeader()->setStretchLastSection(true);
    tdbErros_->setWordWrap(true);

    lblMensagem_ = new QLabel(this);
    lblMensagem_->setObjectName(QStringLiteral("lblMensagem"));
    QFont f = lblMensagem_->font();
    f.setBold(true);
    lblMensagem_->setFont(f);
    cmdOk_ = new QPushButton(QStringLiteral("&Ok"), this);
    cmdOk_->setObjectName(QStringLiteral("cmdOk"));
    cmdSim_ = new QPushButton(QStringLiteral("&Sim"), this);
    cmdSim_->setObjectName(QStringLiteral("cmdSim"));
    cmdNao_ = new QPushButton(QStringLiteral("&Não"), this);
    cmdNao_->setObjectName(QStringLiteral("cmdNao"));
    for (QPushButton *b : {cmdOk_, cmdSim_, cmdNao_})
        b->setAutoDefault(false);

    auto *botoes = new QHBoxLayout;
    botoes->addWidget(lblMensagem_, 1);
    botoes->addWidget(cmdOk_);
    botoes->addWidget(cmdSim_);
    botoes->addWidget(cmdNao_);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(tdbErros_);
    layout->addLayout(botoes);
    resize(620, 280);

    connect(cmdOk_, &QPushButton::clicked, this, [this] {
        session.cancelaGrava = true;
        reject();
    });
    connect(cmdNao_, &QPushButton::clicked, this, [this] {
        session.cancelaGrava = true;
        reject();
    });
    connect(cmdSim_, &QPushButton::clicked, this, [this] {
        session.cancelaGrava = false;
        accept();
    });
    // Closed any other way (the close box, Escape) the save does not go on:
    // only Sim lets it.
    connect(this, &QDialog::rejected, this, [] { session.cancelaGrava = true; });
    aplicaTeclado(*this);

    // Load: the filled rows of the list.
    bool fatal = false;
    for (const auto &row : session.listaErros) {
        if (row[0].isEmpty())
            continue;
        const int r = tdbErros_->rowCount();
        tdbErros_->insertRow(r);
        for (int c = 0; c < 3; ++c)
            tdbErros_->setItem(r, c, new QTableWidgetItem(row[c]));
        fatal = fatal || row[1] == kErroFatal;
    }
    tdbErros_->resizeRowsToContents();
    if (fatal) {
        lblMensagem_->setText(QStringLiteral("Corrija os erros fatais, a gravação não pode ser realizada !"));
        cmdSim_->hide();
        cmdNao_->hide();
    } else {
        lblMensagem_->setText(QStringLiteral("Deseja gravar assim mesmo ?"));
        cmdOk_->hide();
    }
}

void frmErros::semEscolha(const QString &mensagem)
{
    lblMensagem_->setText(mensagem);
    cmdSim_->hide();
    cmdNao_->hide();
    cmdOk_->show();
}
