#include "core/forms/frmAtImpr.h"

#include "core/session.h"
#include "core/widgets/keyboard.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

frmAtImpr::frmAtImpr(QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAtImpr"));
    setWindowTitle(QStringLiteral("Impressora Ativa"));

    lblUsuario_ = new QLabel(this);
    lblUsuario_->setObjectName(QStringLiteral("lblUsuario"));
    auto *grupo = new QGroupBox(QStringLiteral(" Tipo de Impressora "), this);
    auto opcao = [grupo](const char *name, const QString &caption) {
        auto *o = new QRadioButton(caption, grupo);
        o->setObjectName(QString::fromLatin1(name));
        return o;
    };
    optIm_ = opcao("optIm", QStringLiteral("Matricial"));
    OptIj_ = opcao("OptIj", QStringLiteral("Jato de Tinta"));
    optIl_ = opcao("optIl", QStringLiteral("Laser"));
    optIn_ = opcao("optIn", QStringLiteral("Sem Impressora"));
    auto *lg = new QVBoxLayout(grupo);
    for (QRadioButton *o : {optIm_, OptIj_, optIl_, optIn_})
        lg->addWidget(o);

    auto *cmdGravar = new QPushButton(QStringLiteral("&Ativar"), this);
    cmdGravar->setObjectName(QStringLiteral("cmdGravar"));
    auto *cmdSair = new QPushButton(QStringLiteral("&Sair"), this);
    cmdSair->setObjectName(QStringLiteral("cmdSair"));
    for (QPushButton *b : {cmdGravar, cmdSair})
        b->setAutoDefault(false);
    auto *usuario = new QHBoxLayout;
    usuario->addWidget(new QLabel(QStringLiteral("Usuário:"), this));
    usuario->addWidget(lblUsuario_, 1);
    auto *botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(cmdGravar);
    botoes->addWidget(cmdSair);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(usuario);
    layout->addWidget(grupo);
    layout->addLayout(botoes);
    setMinimumWidth(300);

    connect(cmdGravar, &QPushButton::clicked, this, &frmAtImpr::cmdGravar_Click);
    connect(cmdSair, &QPushButton::clicked, this, &frmAtImpr::cmdSair_Click);
    aplicaTeclado(*this);

    // Load.
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conSistema);
    Recordset rs = cn_.Execute(QStringLiteral("SELECT impressora FROM usuarios WHERE nome = '") + session.usuario
                               + QStringLiteral("'"));
    const QString letra = rs.eof() ? QString() : rs[QStringLiteral("impressora")].text();
    if (letra == QLatin1String("M"))
        optIm_->setChecked(true);
    else if (letra == QLatin1String("J"))
        OptIj_->setChecked(true);
    else if (letra == QLatin1String("L"))
        optIl_->setChecked(true);
    else if (letra == QLatin1String("S"))
        optIn_->setChecked(true);
    lblUsuario_->setText(session.usuario);
}

frmAtImpr::~frmAtImpr()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void frmAtImpr::cmdGravar_Click()
{
    QString letra = QStringLiteral("S");
    if (optIm_->isChecked())
        letra = QStringLiteral("M");
    else if (OptIj_->isChecked())
        letra = QStringLiteral("J");
    else if (optIl_->isChecked())
        letra = QStringLiteral("L");
    session.sql = QStringLiteral("UPDATE Usuarios SET ") + QStringLiteral("impressora = '") + letra + QStringLiteral("'")
        + QStringLiteral(" Where nome = '") + session.usuario + QStringLiteral("'");
    cn_.Execute(session.sql);
    session.impressora = letra;
    cn_.Close();
    accept();
}

void frmAtImpr::cmdSair_Click()
{
    cn_.Close();
    reject();
}
