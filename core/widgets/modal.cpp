#include "core/widgets/modal.h"

#include "core/conversions.h"
#include "core/datastore.h"
#include "core/prompter.h"

#include <QApplication>
#include <QMdiSubWindow>
#include <QVariant>

namespace {
ModalHandler handler;
bool fimPedido = false;
const char *const kDescarregado = "habDescarregado";
}

ModalHandler setModalHandler(ModalHandler h)
{
    ModalHandler old = std::move(handler);
    handler = std::move(h);
    return old;
}

void marcaDescarregado(QWidget &form) { form.setProperty(kDescarregado, true); }
bool descarregado(const QWidget &form) { return form.property(kDescarregado).toBool(); }

int showModal(QDialog &dlg)
{
    if (descarregado(dlg))
        return QDialog::Rejected;
    if (handler) {
        ModalHandler h = handler;  // the handler may open a dialog of its own
        h(dlg);
        return dlg.result();
    }
    const int result = dlg.exec();
    if (fimPedido)
        throw ProgramEnded();
    return result;
}

void pedeFimPrograma()
{
    fimPedido = true;
    QCoreApplication::exit(0);
}

bool fimProgramaPedido() { return fimPedido; }

void trataFalhaNoTopo()
{
    try {
        throw;
    } catch (const ProgramEnded &) {
    } catch (const DatabaseError &e) {
        MsgBox(e.message() + QStringLiteral("\n\n") + e.statement(), vbCritical, QStringLiteral("Erro Fatal"));
    } catch (const RunFailure &e) {
        MsgBox(e.message(), vbCritical, QStringLiteral("Erro Fatal"));
    } catch (const std::exception &e) {
        MsgBox(QString::fromUtf8(e.what()), vbCritical, QStringLiteral("Erro Fatal"));
    }
    while (QApplication::overrideCursor())
        QApplication::restoreOverrideCursor();
    pedeFimPrograma();
}

void fechaForm(QWidget &form)
{
    if (auto *sub = qobject_cast<QMdiSubWindow *>(form.parentWidget()))
        sub->close();
    else
        form.close();
}
