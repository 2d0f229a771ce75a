#pragma once
// The helpers that act on all the fields of a form (or of one of its frames).
#include <QWidget>

// Empties every field by its kind: a text, combo or masked field to the empty
// text, a check box and an option button unchecked, a framed label (a value
// shown, not a caption) emptied, a number field to 0, a date field to its empty
// prompts ("__/__/____", a year field "____"; a month-and-year field is left
// as it is).
void LimpaCampos(QWidget &container);
// Enables or disables every field and button: text, combo and date fields
// also take a white background when enabled and the button face when not.
void HabilitaCampos(QWidget &container, bool enabled);
// Puts a blank in every empty text and masked field, so that no column is
// written as the empty text.
void PreencheVazios(QWidget &container);
// Selects the contents of the field that has the focus: a masked field over
// the length of its mask, any other text field over its text. A button is left alone.
void SelecionaCampo();
