#include "billing/forms/relatoriofin.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/forms/abrepesquisa.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/widgets/datefield.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {
void mostraNomeApto(Connection &con, MaskEdit *codigo, QLabel *nome)
{
    QString texto = codigo->textoPuro();
    if (!texto.isEmpty()) {
        texto = ZeroEsq(texto, 6);
        codigo->setText(texto);
    }
    Recordset rs = con.Execute(QStringLiteral("SELECT nome FROM Aptos WHERE codigo = '") + texto + u'\'');
    nome->setText(rs.eof() ? QString() : rs[QStringLiteral("nome")].text());
}

bool marcado(const QWidget &form, const char *nome)
{
    const auto *b = form.findChild<const QAbstractButton *>(QString::fromLatin1(nome));
    return b && b->isChecked();
}
} // namespace

FormImpressao::~FormImpressao()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void FormImpressao::liga()
{
    connect(findChild<QPushButton *>(QStringLiteral("cmdImprimir")), &QPushButton::clicked, this,
            [this] { cmdImprimir_Click(); });
    connect(findChild<QPushButton *>(QStringLiteral("cmdSair")), &QPushButton::clicked, this, [this] { fechaForm(*this); });
    aplicaTeclado(*this);
    cn_.ConnectionTimeout = 100;
    cn_.Open(session.conAtiva);
}

TiposTotal tiposDoForm(const QWidget &form)
{
    TiposTotal t;
    t.h = marcado(form, "chkH");
    t.r = marcado(form, "chkR");
    t.t = marcado(form, "chkT");
    t.d = marcado(form, "chkD");
    return t;
}

QChar situacaoDoForm(const QWidget &form)
{
    if (marcado(form, "optA"))
        return u'A';
    if (marcado(form, "optB"))
        return u'B';
    return u'T';
}

bool periodoDosCampos(DateField *de, DateField *ate, QDate &inicio, QDate &fim)
{
    inicio = fim = QDate();
    if (de->vazio() && ate->vazio())
        return true;
    inicio = de->data();
    fim = ate->data();
    if (inicio.isValid() && fim.isValid())
        return true;
    MsgBox(QStringLiteral("Informe as duas datas do período !"), vbExclamation, QStringLiteral("Atenção..."));
    (inicio.isValid() ? ate : de)->setFocus();
    return false;
}

void ligaCampoApto(Connection &con, MaskEdit *codigo, QPushButton *pesquisa, QLabel *nome)
{
    aoPerderFoco(codigo, [&con, codigo, nome] { mostraNomeApto(con, codigo, nome); });
    QObject::connect(pesquisa, &QPushButton::clicked, codigo, [&con, codigo, nome] {
        if (abrePesquisa(formDe(codigo), QStringLiteral("frmPesqap"), QStringLiteral("Pesquisa de Apartamentos"),
                         QStringLiteral("Aptos"))) {
            codigo->setText(session.valorPesq);
            mostraNomeApto(con, codigo, nome);
        }
    });
}
