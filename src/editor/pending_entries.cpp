// SPDX-License-Identifier: MIT
#include "editor/pending_entries.h"

#include "document/win32_doc.h"
#include "model/term_syntax.h"
#include "platform/user_prompt.h"

#include <utility>

namespace {

/// What the fields hold when they add an entry; nothing when they change one.
EntryTexts Added(const FieldTexts &fields)
{
    return fields.entry == NoEntry ? fields.typed : EntryTexts();
}

/// The texts that an entry gets from the fields. A term that was emptied stays as it was.
EntryTexts Changed(const FieldTexts &fields)
{
    EntryTexts texts = fields.given;
    for (const size_t language : {0u, 1u}) {
        const QString term = NormalizeTerm(fields.typed[language]);
        texts[language] = term.isEmpty() ? texts[language] : term;
    }
    texts[2] = fields.typed[2];
    return texts;
}

/// Whether the fields hold another text than they were given.
bool HasChanges(const FieldTexts &fields)
{
    return fields.entry != NoEntry && fields.typed != fields.given && Changed(fields) != fields.given;
}

EntryTexts InNormalForm(EntryTexts texts)
{
    for (const size_t language : {0u, 1u}) {
        texts[language] = NormalizeTerm(texts[language]);
    }
    return texts;
}

}

CPendingEntries::CPendingEntries(const CWin32Doc &document, const IUserPrompt &prompt, CRowModel &rows,
    CEntryEditing &editing, IPendingView &view)
    : m_document(document), m_prompt(prompt), m_rows(rows), m_editing(editing), m_view(view)
{
}

void CPendingEntries::StoreWhole()
{
    if (std::exchange(m_storing, true)) {
        return; // The session ends while a question about it is open.
    }
    // Taken first: an entry that is stored may load the fields with others.
    const FieldTexts fields = m_view.Fields();
    EditStep step;
    const auto store = [&step](const EditStep &next) {
        if (!step.Selects()) {
            step = next;
        }
    };
    if (HasChanges(fields)) {
        // Before the open edit, which may add an entry and with it change the number of this one.
        store(m_editing.StoreFields(Changed(fields), fields.entry));
    }
    store(m_view.StoreEdit());
    const EntryTexts added = InNormalForm(Added(fields));
    if (HasBothTerms(added)) {
        store(m_editing.StoreFields(added, NoEntry));
        m_view.EmptyFields();
    }
    if (HasBothTerms(m_rows.pending)) {
        store(m_editing.StorePending());
    }
    // Selecting an entry would load it over what is left in the fields.
    const bool keepsFields = RestAsEntry(Added(m_view.Fields())).has_value();
    m_view.Stored(keepsFields && step.Selects() ? EditStep() : step);
    m_storing = false;
}

bool CPendingEntries::HasRest() const
{
    return RestAsEntry(m_rows.pending) || RestAsEntry(Added(m_view.Fields()));
}

void CPendingEntries::StoreRest()
{
    const EntryTexts row = std::exchange(m_rows.pending, {});
    const EntryTexts fields = Added(m_view.Fields());
    if (RestAsEntry(fields)) {
        m_view.EmptyFields();
    }
    m_editing.AddRest(row);
    m_editing.AddRest(fields);
    m_view.Stored({});
}

void CPendingEntries::KeepLeft(const FieldTexts &fields)
{
    const CWordEntry &entry = m_document.List().Entry(fields.entry);
    if (HasChanges(fields)) {
        if (fields.given == EntryTexts{entry.GetText(0), entry.GetText(1), entry.GetNote()}) {
            m_editing.ChangeUnasked(fields.entry, Changed(fields));
        }
    } else if (!RestAsEntry(Added(fields))) {
        return;
    } else if (!RestAsEntry(m_rows.pending)) {
        m_rows.pending = InNormalForm(Added(fields));
        m_view.PendingKept();
    } else {
        m_editing.AddRest(Added(fields));
    }
}

CWordList CPendingEntries::ListWithAll() const
{
    CWordList list = m_document.List();
    const FieldTexts fields = m_view.Fields();
    if (HasChanges(fields)) {
        const EntryTexts texts = Changed(fields);
        list.ReplaceEntry(fields.entry, texts[0], texts[1], texts[2], false);
    }
    EntryTexts row = m_rows.pending;
    if (const std::optional<OpenEdit> edit = m_view.EditedCell()) {
        const bool isNote = edit->field == CWordEntry::NoteField;
        const QString text = isNote ? edit->text.trimmed() : NormalizeTerm(edit->text);
        if (!isNote && text.isEmpty()) {
            // A term is never emptied.
        } else if (m_rows.IsNewEntryRow(edit->row)) {
            row[size_t(edit->field)] = text;
        } else {
            list.SetEntryField(text, edit->field, m_rows.EntryOfRow(edit->row), false);
        }
    }
    int position = m_rows.InsertionPoint();
    for (const EntryTexts &texts : {row, Added(fields)}) {
        if (std::optional<CWordEntry> entry = RestAsEntry(texts)) {
            list.Insert(std::move(*entry), {.position = position++});
        }
    }
    // Which field each word is for is only known when it goes on, so they become pairs in their order.
    const QStringList words = m_prompt.TypedMeanwhile().split(u'\n', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < words.size(); i += 2) {
        if (std::optional<CWordEntry> entry = RestAsEntry({words.at(i), words.value(i + 1), {}})) {
            list.Insert(std::move(*entry), {.position = position++});
        }
    }
    return list;
}
