// SPDX-License-Identifier: MIT
#pragma once

#include "editor/entry_editing.h"

#include <QWidget>

#include <array>

class CElidedLabel;
class CLongLineEdit;
class CTexts;
class QLineEdit;
class QPushButton;

/// The three fields below the list in which an entry is typed or changed, with their buttons.
class CEntryFields : public QWidget
{
    Q_OBJECT

public:
    explicit CEntryFields(const CTexts &texts, QWidget *parent = nullptr);

    void SetLanguages(const QString &language1, const QString &language2);
    EntryTexts Texts() const;
    void SetTexts(const EntryTexts &texts);
    QLineEdit &Line(int field) const;
    /// In change mode the fields hold an entry of the list, else one that is to be added.
    void SetChangeMode(bool change);
    bool IsChangeMode() const { return m_changeMode; }
    void FocusField(int field);
    /// The same, but what is selected there stays so.
    void FocusText(int field);
    /// Selects a stretch of what stands in a field, in code units, and scrolls there.
    void SelectText(int field, int start, int length);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// A field took the keyboard.
    void Entered(int field);
    void NewEntry();
    void AddOrChange();
    /// The user typed in a field.
    void Typed();

private:
    QPushButton *MakeButton(int text, const char *name);

    const CTexts &m_texts;
    std::array<CElidedLabel *, CWordEntry::FieldCount> m_labels;
    std::array<CLongLineEdit *, CWordEntry::FieldCount> m_fields;
    QPushButton *m_addOrChange;
    bool m_changeMode = false;
};
