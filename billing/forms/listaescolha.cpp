#include "billing/forms/listaescolha.h"

#include "core/prompter.h"
#include "core/session.h"
#include "core/val.h"
#include "core/widgets/grade.h"
#include "core/widgets/keyboard.h"
#include "core/widgets/modal.h"

#include <QLineEdit>
#include <QPushButton>

ListaDeEscolha::~ListaDeEscolha()
{
    if (cn_.State() == 1)
        cn_.Close();
}

void ListaDeEscolha::liga(Grade *grade, QLineEdit *pesquisa, QPushButton *pesquisar, QPushButton *ok,
                          QPushButton *cancelar, const QStringList &titulos, int colunaNome, const QString &naoAchado)
{
    grade_ = grade;
    pesquisa_ = pesquisa;
    colunaNome_ = colunaNome;
    naoAchado_ = naoAchado;
    if (!session.tituloPesq.isEmpty())
        setWindowTitle(session.tituloPesq);
    grade->modelo()->setTitulos(titulos);
    grade->modelo()->setColunaNumerica(0);
    connect(pesquisar, &QPushButton::clicked, this, &ListaDeEscolha::cmdPesquisar_Click);
    connect(ok, &QPushButton::clicked, this, &ListaDeEscolha::cmdOk_Click);
    connect(cancelar, &QPushButton::clicked, this, &ListaDeEscolha::reject);
    connect(grade, &Grade::linhaEscolhida, this, [this] { cmdOk_Click(); });
    aplicaTeclado(*this);
    cn_.ConnectionTimeout = 100;
}

void ListaDeEscolha::vazia(const QString &mensagem)
{
    ponteiroNormal();
    MsgBox(mensagem, vbExclamation, QStringLiteral("Atenção"));
    session.cancelaGrava = true;
    marcaDescarregado(*this);
}

void ListaDeEscolha::pronta()
{
    grade_->ajustaColunas();
    grade_->posiciona(0);
}

void ListaDeEscolha::cmdPesquisar_Click()
{
    const QString texto = pesquisa_->text().trimmed();
    if (texto.isEmpty())
        return;
    bool numero = false;
    texto.toLongLong(&numero);
    const int linha = numero ? grade_->modelo()->procuraNumero(0, val(texto)) : grade_->modelo()->procura(colunaNome_, texto);
    if (linha < 0) {
        MsgBox(naoAchado_, vbExclamation, QStringLiteral("Atenção"));
        return;
    }
    grade_->posiciona(linha);
}

void ListaDeEscolha::cmdOk_Click()
{
    const int linha = grade_->linhaAtual();
    if (linha < 0)
        return;
    session.valorPesq = grade_->texto(linha, 0);
    session.cancelaGrava = false;
    accept();
}

void ListaDeEscolha::reject()
{
    session.cancelaGrava = true;
    QDialog::reject();
}
