#include "registers/forms/frmUsucli.h"

#include "core/anotaerro.h"
#include "core/conversions.h"
#include "core/installation.h"
#include "core/widgets/keyboard.h"
#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/maskedit.h"

#include <QFile>
#include <QFocusEvent>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

namespace {
QLineEdit *texto(QWidget *parent, const char *name, int largura, int caracteres)
{
    auto *e = new QLineEdit(parent);
    e->setObjectName(QString::fromLatin1(name));
    e->setMaxLength(largura);
    if (caracteres > 0)
        e->setFixedWidth(e->fontMetrics().horizontalAdvance(QString(caracteres, u'0')) + 14);
    return e;
}

MaskEdit *mascarado(QWidget *parent, const char *name, const QString &mascara)
{
    auto *m = new MaskEdit(parent);
    m->setObjectName(QString::fromLatin1(name));
    m->setMascara(mascara);
    m->setFixedWidth(m->fontMetrics().horizontalAdvance(QString(mascara.size() + 1, u'0')) + 14);
    return m;
}

QString aspas(const QString &s) { return u'"' + s + u'"'; }
}

frmUsucli::frmUsucli(QWidget *parent) : RecordForm(parent)
{
    setObjectName(QStringLiteral("frmUsucli"));
    setWindowTitle(QStringLiteral("Cadastro de Condomínios"));
    montaTela(QStringLiteral("Código:"), QString(), 3);
    cmdImprimir_->hide();  // no report of condominiums exists

    QWidget *f = fraDados_;
    txtnome_ = texto(f, "txtnome", 40, 0);
    txtEndereco_ = texto(f, "txtEndereco", 40, 0);
    txtNumero_ = texto(f, "txtNumero", 6, 7);
    txtComplemento_ = texto(f, "txtComplemento", 20, 16);
    txtBairro_ = texto(f, "txtBairro", 25, 0);
    txtCidade_ = texto(f, "txtCidade", 25, 0);
    txtUf_ = texto(f, "txtUf", 2, 3);
    mskCep_ = mascarado(f, "mskCep", QStringLiteral("#####-###"));
    mskcgc_ = mascarado(f, "mskcgc", QStringLiteral("##.###.###/####-##"));
    mskCpf_ = mascarado(f, "mskCpf", QStringLiteral("###.###.###-##"));
    txtDdd_ = texto(f, "txtDdd", 4, 4);
    txtFone_ = texto(f, "txtFone", 15, 11);
    txtFone2_ = texto(f, "txtFone2", 15, 11);
    txtFax_ = texto(f, "txtFax", 15, 11);
    txtemail_ = texto(f, "txtemail", 50, 0);
    txthomepage_ = texto(f, "txthomepage", 50, 0);
    txtObs_ = new QPlainTextEdit(f);
    txtObs_->setObjectName(QStringLiteral("txtObs"));
    txtObs_->setFixedHeight(txtObs_->fontMetrics().height() * 3 + 12);
    txtObs_->setTabChangesFocus(true);

    auto rotulo = [f](const QString &t) {
        auto *l = new QLabel(t, f);
        l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        return l;
    };
    auto *g = new QGridLayout(f);
    g->addWidget(rotulo(QStringLiteral("Nome:")), 0, 0);
    g->addWidget(txtnome_, 0, 1, 1, 5);
    g->addWidget(rotulo(QStringLiteral("Endereço:")), 1, 0);
    g->addWidget(txtEndereco_, 1, 1, 1, 3);
    g->addWidget(rotulo(QStringLiteral("Número:")), 1, 4);
    g->addWidget(txtNumero_, 1, 5);
    g->addWidget(rotulo(QStringLiteral("Complemento:")), 2, 0);
    g->addWidget(txtComplemento_, 2, 1);
    g->addWidget(rotulo(QStringLiteral("Bairro:")), 2, 2);
    g->addWidget(txtBairro_, 2, 3, 1, 3);
    g->addWidget(rotulo(QStringLiteral("Cidade:")), 3, 0);
    g->addWidget(txtCidade_, 3, 1, 1, 3);
    g->addWidget(rotulo(QStringLiteral("UF:")), 3, 4);
    g->addWidget(txtUf_, 3, 5);
    g->addWidget(rotulo(QStringLiteral("CEP:")), 4, 0);
    g->addWidget(mskCep_, 4, 1);
    g->addWidget(rotulo(QStringLiteral("CNPJ:")), 4, 2);
    g->addWidget(mskcgc_, 4, 3);
    g->addWidget(rotulo(QStringLiteral("CPF:")), 5, 2);
    g->addWidget(mskCpf_, 5, 3);
    g->addWidget(rotulo(QStringLiteral("DDD:")), 5, 0);
    g->addWidget(txtDdd_, 5, 1);
    g->addWidget(rotulo(QStringLiteral("Telefone:")), 6, 0);
    g->addWidget(txtFone_, 6, 1);
    g->addWidget(rotulo(QStringLiteral("Telefone 2:")), 6, 2);
    g->addWidget(txtFone2_, 6, 3);
    g->addWidget(rotulo(QStringLiteral("Fax:")), 7, 0);
    g->addWidget(txtFax_, 7, 1);
    g->addWidget(rotulo(QStringLiteral("E-mail:")), 8, 0);
    g->addWidget(txtemail_, 8, 1, 1, 5);
    g->addWidget(rotulo(QStringLiteral("Home Page:")), 9, 0);
    g->addWidget(txthomepage_, 9, 1, 1, 5);
    g->addWidget(rotulo(QStringLiteral("Observações:")), 10, 0, Qt::AlignTop | Qt::AlignRight);
    g->addWidget(txtObs_, 10, 1, 1, 5);
    g->setColumnStretch(3, 1);
    for (QWidget *w : std::initializer_list<QWidget *>{txtComplemento_, mskCep_, txtDdd_, txtFone_, txtFax_})
        g->setAlignment(w, Qt::AlignLeft);
    for (QWidget *w : std::initializer_list<QWidget *>{txtUf_, mskcgc_, mskCpf_, txtFone2_, txtNumero_})
        g->setAlignment(w, Qt::AlignLeft);

    aoPerderFoco(txtUf_, [this] { txtUf_LostFocus(); });
    aoPerderFoco(mskcgc_, [this] { mskcgc_LostFocus(); });
    aoPerderFoco(mskCpf_, [this] { mskCpf_LostFocus(); });

    // The form works on the system file, and so, from now on, does every form
    // that opens conAtiva (frmPesquisa among them).
    session.conAtiva = session.conSistema;
    carrega(session.conSistema);
}

QString frmUsucli::normalizaCodigo(const QString &masked) const
{
    const QString bare = masked.trimmed();
    return bare.isEmpty() ? QString() : QString::number(qint64(val(bare)));
}

QString frmUsucli::sqlBusca(const QString &c) const { return QStringLiteral("SELECT * FROM clientes Where Codigo = ") + c; }
QString frmUsucli::sqlExiste(const QString &c) const { return QStringLiteral("SELECT * FROM clientes Where Codigo = ") + c; }
QString frmUsucli::sqlContagem() const { return QStringLiteral("SELECT Count(codigo) As I FROM Clientes"); }
QString frmUsucli::sqlLista() const { return QStringLiteral("SELECT * FROM Clientes ORDER BY codigo"); }

QString frmUsucli::cepGravado() const
{
    return mskCep_->textoPuro().isEmpty() ? QStringLiteral("00000-000") : mskCep_->textoMascarado();
}

QString frmUsucli::sqlInsert(const QString &c) const
{
    const QStringList valores{aspas(txtnome_->text()),        aspas(txtEndereco_->text()),
                              aspas(txtNumero_->text()),      aspas(txtComplemento_->text()),
                              aspas(txtBairro_->text()),      aspas(txtCidade_->text()),
                              aspas(txtUf_->text()),          aspas(cepGravado()),
                              aspas(mskcgc_->textoMascarado()), aspas(mskCpf_->textoMascarado()),
                              aspas(txtDdd_->text()),         aspas(txtFone_->text()),
                              aspas(txtFone2_->text()),       aspas(txtFax_->text()),
                              aspas(txtemail_->text()),       aspas(txthomepage_->text()),
                              aspas(txtObs_->toPlainText())};
    return QStringLiteral("INSERT INTO clientes(codigo,nome,endereco,numero,")
        + QStringLiteral("complemento,bairro,cidade,uf,cep,cgc,cpf,") + QStringLiteral("ddd,fone1,fone2,fax,email,")
        + QStringLiteral("homepage,obs)") + QStringLiteral(" VALUES( '") + c + QStringLiteral("',") + valores.join(u',')
        + u')';
}

QString frmUsucli::sqlUpdate(const QString &c) const
{
    const QList<QPair<const char *, QString>> colunas{
        {"nome", txtnome_->text()},          {"endereco", txtEndereco_->text()},
        {"numero", txtNumero_->text()},      {"complemento", txtComplemento_->text()},
        {"bairro", txtBairro_->text()},      {"cidade", txtCidade_->text()},
        {"uf", txtUf_->text()},              {"cep", cepGravado()},
        {"cgc", mskcgc_->textoMascarado()},  {"cpf", mskCpf_->textoMascarado()},
        {"ddd", txtDdd_->text()},            {"fone1", txtFone_->text()},
        {"fone2", txtFone2_->text()},        {"fax", txtFax_->text()},
        {"email", txtemail_->text()},        {"homepage", txthomepage_->text()},
        {"obs", txtObs_->toPlainText()}};
    QStringList sets;
    for (const auto &[coluna, valor] : colunas)
        sets << QString::fromLatin1(coluna) + QStringLiteral(" = ") + aspas(valor);
    return QStringLiteral("Update clientes Set ") + sets.join(u',') + QStringLiteral(" Where codigo = ") + c;
}

QString frmUsucli::sqlDelete(const QString &c) const { return QStringLiteral("DELETE FROM Clientes WHERE codigo = ") + c; }

void frmUsucli::carregaCampos(const Recordset &rs)
{
    auto t = [&rs](const char *c) { return rs[QString::fromLatin1(c)].text(); };
    txtnome_->setText(t("nome"));
    txtEndereco_->setText(t("endereco"));
    txtNumero_->setText(t("numero"));
    txtComplemento_->setText(t("complemento"));
    txtBairro_->setText(t("bairro"));
    txtCidade_->setText(t("cidade"));
    txtUf_->setText(t("uf"));
    mskCep_->setText(t("cep"));
    mskcgc_->setText(t("cgc"));
    mskCpf_->setText(t("cpf"));
    txtDdd_->setText(t("ddd"));
    txtFone_->setText(t("fone1"));
    txtFone2_->setText(t("fone2"));
    txtFax_->setText(t("fax"));
    txtemail_->setText(t("email"));
    txthomepage_->setText(t("homepage"));
    txtObs_->setPlainText(t("obs"));
}

QString frmUsucli::mensagemCodigoInvalido() const
{
    return QStringLiteral("Todo registro deve ter um código numérico válido !");
}

void frmUsucli::antesDasRegras() { PreencheVazios(*fraDados_); }

void frmUsucli::validaCampos()
{
    if (txtnome_->text().trimmed().isEmpty())
        AnotaErro(kErroFatal, QStringLiteral("O campo Empresa é obrigatório !"));
}

void frmUsucli::aposGravar(const QString &codigo, bool eraNovo)
{
    if (!eraNovo)
        return;
    const QString arquivo = nomeArquivoCondominio(int(val(codigo)));
    if (QFile::exists(session.sysPath + arquivo))
        return;
    if (MsgBox(QStringLiteral("Não existe banco de dados para este cliente, criar ? "), vbYesNo,
               QStringLiteral("Criar Arquivo..."))
        == vbYes)
        copiaMatriz(session.sysPath, arquivo);
}

QString frmUsucli::perguntaExclusao(const QString &codigo) const
{
    return QStringLiteral("Recomendamos que seja feita uma cópia de segurança do arquivo Con") + ZeroEsq(codigo, 3)
        + QStringLiteral(".mdb pois ele será apagado e um novo arquivo totalmente vazio será criado, deseja realmente "
                         "fazer a exclusão deste condomínio ?");
}

int frmUsucli::estiloExclusao() const { return vbYesNo + vbCritical + vbDefaultButton2; }

void frmUsucli::antesDeApagar(const QString &codigo)
{
    // No new file is made here: the next activation of the code offers it.
    const QString arquivo = session.sysPath + nomeArquivoCondominio(int(val(codigo)));
    if (QFile::exists(arquivo) && !QFile::remove(arquivo))
        throw RunFailure(QStringLiteral("Não foi possível apagar o arquivo ") + arquivo);
}

QStringList frmUsucli::linhaGrade(const Recordset &rs) const
{
    return {rs[QStringLiteral("codigo")].text(), rs[QStringLiteral("nome")].text(), rs[QStringLiteral("cidade")].text()};
}

QStringList frmUsucli::titulosGrade() const
{
    return {QStringLiteral("Código"), QStringLiteral("Nome"), QStringLiteral("Cidade")};
}

QWidget *frmUsucli::primeiroCampo() const { return txtnome_; }

QString frmUsucli::mensagemAbandono() const
{
    return QStringLiteral("Você não pode abandonar uma operação em andamento, grave ou cancele antes...");
}

RecordForm::Pesquisa frmUsucli::pesquisa() const
{
    return {QStringLiteral("frmPesquisa"), QStringLiteral("Pesquisa de Condomínios"), QStringLiteral("Clientes"), 3};
}

void frmUsucli::txtUf_LostFocus()
{ confereUF(txtUf_); }

void frmUsucli::mskcgc_LostFocus()
{ confereCGC(mskcgc_); }

void frmUsucli::mskCpf_LostFocus()
{ confereCPF(mskCpf_); }
