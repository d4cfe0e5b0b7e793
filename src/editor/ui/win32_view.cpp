// SPDX-License-Identifier: MIT
#include "editor/ui/win32_view.h"

#include "document/win32_doc.h"
#include "editor/ui/word_list_control.h"
#include "editor/word_list_model.h"
#include "platform/ui/elided_label.h"
#include "resources/text_numbers.h"
#include "resources/texts.h"

#include <QGridLayout>
#include <QItemSelection>
#include <QItemSelectionModel>

#include <algorithm>

namespace {

CElidedLabel *MakeLabel(QWidget *parent, const char *name)
{
    auto *label = new CElidedLabel(parent);
    label->setObjectName(QLatin1StringView(name));
    return label;
}

}

CWin32View::CWin32View(
    CWin32Doc &document, const EditorSettings &settings, const CTexts &texts, QWidget *parent)
    : QWidget(parent), m_document(document), m_texts(texts), m_summary(document, texts),
      m_model(new CWordListModel(document, settings, texts, this)), m_list(new CWordListControl(this)),
      m_author(MakeLabel(this, "author")), m_comments(MakeLabel(this, "comments"))
{
    m_list->setObjectName(QStringLiteral("wordList"));
    m_list->setAccessibleName(texts.Get(Text::ViewList));
    m_list->setModel(m_model);

    auto *layout = new QGridLayout(this);
    layout->addWidget(m_author, 0, 0);
    layout->addWidget(m_comments, 0, 1);
    layout->addWidget(m_list, 1, 0, 1, 2);
    layout->setRowStretch(1, 1);
    setFocusProxy(m_list);

    connect(
        m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &CWin32View::UpdateStatusText);
    connect(&document, &CWin32Doc::ListReplaced, this, &CWin32View::RefreshAll);
    RefreshAll();
}

std::vector<int> CWin32View::SelectedEntries() const
{
    std::vector<int> entries;
    // Ranges, not rows one by one: a selection of a hundred thousand rows is a handful of ranges.
    for (const QItemSelectionRange &range : m_list->selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            entries.push_back(row);
        }
    }
    std::ranges::sort(entries);
    entries.erase(std::unique(entries.begin(), entries.end()), entries.end());
    return entries;
}

void CWin32View::SelectEntries(const std::vector<int> &entries)
{
    QItemSelection selection;
    const int lastColumn = m_model->columnCount() - 1;
    for (auto first = entries.begin(); first != entries.end();) {
        auto last = first;
        while (last + 1 != entries.end() && *(last + 1) == *last + 1) {
            ++last;
        }
        selection.append(QItemSelectionRange(m_model->index(*first, 0), m_model->index(*last, lastColumn)));
        first = last + 1;
    }
    m_list->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!entries.empty()) {
        m_list->scrollTo(m_model->index(entries.front(), 0));
    }
}

void CWin32View::RefreshAll()
{
    m_model->reset();
    m_list->layoutColumns();
    m_document.UpdateTitleMark();
    const CWordList &list = m_document.List();
    m_author->setText(m_texts.Fill(Text::ViewAuthor, {list.GetAuthor()}));
    m_comments->setText(m_texts.Fill(Text::ViewComments, {list.GetComments()}));
    UpdateStatusText();
}

void CWin32View::UpdateStatusText()
{
    Q_EMIT StatusTextChanged(m_summary.Describe(SelectedEntries()));
}
