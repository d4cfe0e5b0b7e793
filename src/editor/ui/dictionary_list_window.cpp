// SPDX-License-Identifier: MIT
#include "editor/ui/dictionary_list_window.h"

#include "document/text_numbers.h"
#include "editor/dictionary_list_model.h"
#include "editor/text_numbers.h"
#include "platform/plain_text.h"
#include "platform/ui/held_keys.h"
#include "platform/ui/label.h"
#include "platform/ui/row_table.h"
#include "platform/ui/scrolling_page.h"
#include "platform/ui/setting_controls.h"
#include "platform/ui/spoken_text.h"
#include "resources/texts.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTableView>

namespace {

/// How long nothing changes until the count is read out: whoever types hears the letters meanwhile.
constexpr int SayDelay = 700; // In milliseconds.
constexpr int LeastCharacters = 20;

}

CDictionaryListWindow::CDictionaryListWindow(
    std::unique_ptr<CDictionaryListForm> form, IEditorView &view, const OpenHelp &openHelp, QWidget *owner)
    : QDialog(owner), m_form(std::move(form)), m_view(view), m_model(new CDictionaryListModel(*m_form, this)),
      m_spoken(new CSpokenText(this))
{
    setObjectName(QStringLiteral("dictionaryList"));
    setWindowTitle(m_form->Texts().Get(Text::DictionaryListTitle));
    setWindowModality(Qt::WindowModal);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(new CScrollingPage(MakeChoices(), this));
    layout->addWidget(MakeWords(), 2);
    layout->addWidget(MakeResult(), 3);
    m_sayTimer.setSingleShot(true);
    m_sayTimer.setInterval(SayDelay);
    connect(&m_sayTimer, &QTimer::timeout, this, [this] { m_spoken->Say(m_summary->text()); });
    connect(m_form.get(), &CDictionaryListForm::Changed, this, &CDictionaryListWindow::Refresh);
    auto *const help = new QShortcut(Qt::Key_F1, this);
    help->setAutoRepeat(false);
    connect(help, &QShortcut::activated, this, [openHelp] { openHelp(QStringLiteral("list-dictionary")); });
    m_words->setFocus();
    FitToScreen(*this);
    NoticeHeldKeys(*this);
    ShowSides();
    Refresh();
}

CDictionaryListWindow::~CDictionaryListWindow()
{
    disconnect(m_form.get(), nullptr, this, nullptr);
}

QWidget *CDictionaryListWindow::MakeChoices()
{
    const CTexts &texts = m_form->Texts();
    auto *const page = new QWidget;
    auto *const rows = new QFormLayout(page);
    rows->setContentsMargins({});
    rows->setRowWrapPolicy(QFormLayout::WrapLongRows);
    QComboBox *const dictionary = MakeChoice(
        page, "dictionary", m_form->Dictionaries().join(u'\n'), m_form->Dictionary(), [this](int index) {
            m_form->ChooseDictionary(index);
            ShowSides();
        });
    QComboBox *const match = MakeChoice(page, "match", texts.Get(Text::DictionaryListMatches), m_form->Match(),
        [this](int index) { m_form->ChooseMatch(index); });
    m_side = MakeChoice(page, "side", {}, 0, [this](int index) { m_form->ChooseSide(index); });
    for (QComboBox *const choice : {dictionary, match, m_side}) {
        // Names may be long.
        choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        choice->setMinimumContentsLength(LeastCharacters);
    }
    AddLabelledRow(*rows, texts.Get(Text::DictionaryListDictionary), dictionary);
    AddLabelledRow(*rows, texts.Get(Text::DictionaryListSide), m_side);
    AddLabelledRow(*rows, texts.Get(Text::DictionaryListMatch), match);
    return page;
}

QWidget *CDictionaryListWindow::MakeWords()
{
    auto *const part = new QWidget(this);
    auto *const layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    m_words = new QPlainTextEdit(part);
    m_words->setObjectName(QStringLiteral("words"));
    m_words->setTabChangesFocus(true);
    // Where there is little room the choices above have theirs first.
    m_words->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_words->setMinimumSize(
        fontMetrics().averageCharWidth() * LeastCharacters, fontMetrics().lineSpacing() * 3);
    QLabel *const label = MakeLabel(m_form->Texts().Get(Text::DictionaryListWords), part);
    label->setBuddy(m_words);
    m_words->setAccessibleName(CaptionReadOut(label->text()));
    layout->addWidget(label);
    layout->addWidget(m_words, 1);
    connect(
        m_words, &QPlainTextEdit::textChanged, this, [this] { m_form->ChooseText(m_words->toPlainText()); });
    return part;
}

QWidget *CDictionaryListWindow::MakeResult()
{
    const CTexts &texts = m_form->Texts();
    auto *const part = new QWidget(this);
    auto *const layout = new QVBoxLayout(part);
    layout->setContentsMargins({});
    m_entries = new QTableView(part);
    m_entries->setObjectName(QStringLiteral("entries"));
    m_entries->setModel(m_model);
    ShowRows(*m_entries);
    m_entries->setEditTriggers(QTableView::NoEditTriggers);
    m_entries->setSelectionMode(QTableView::SingleSelection);
    m_entries->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_entries->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_entries->setMinimumHeight(
        m_entries->horizontalHeader()->sizeHint().height() + fontMetrics().height() * 3);
    QLabel *const label = MakeLabel(texts.Get(Text::PreviewEntries), part);
    label->setBuddy(m_entries);
    m_entries->setAccessibleName(CaptionReadOut(label->text()));
    m_summary = MakeWrappedLabel({}, part);
    m_summary->setObjectName(QStringLiteral("summary"));
    m_insert = new QPushButton(texts.Get(Text::DictionaryListInsert), part);
    m_insert->setObjectName(QStringLiteral("insert"));
    m_insert->setDefault(true);
    auto *const cancel = new QPushButton(texts.Get(Text::Cancel), part);
    cancel->setObjectName(QStringLiteral("cancel"));
    cancel->setAutoDefault(false);
    connect(m_insert, &QPushButton::clicked, this, &CDictionaryListWindow::accept);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_insert);
    buttons->addWidget(cancel);
    layout->addWidget(label);
    layout->addWidget(m_entries, 1);
    layout->addWidget(m_summary);
    layout->addLayout(buttons);
    return part;
}

void CDictionaryListWindow::ShowSides()
{
    const QSignalBlocker blocker(m_side);
    m_side->clear();
    for (const int column : {0, 1}) {
        m_side->addItem(ShownShort(OneLine(m_form->LanguageOf(column))));
    }
    m_side->setCurrentIndex(m_form->Side());
    m_side->setEnabled(m_form->CanChooseSide());
    m_model->Renew(); // Its headings are the languages.
}

void CDictionaryListWindow::Refresh()
{
    const QString summary = m_form->Summary();
    if (!m_form->IsLookingUp()) {
        m_model->Renew();
        if (isVisible() && summary != m_summary->text()) {
            m_sayTimer.start();
        }
    }
    m_summary->setText(summary);
    m_insert->setEnabled(m_form->CanInsert());
}

void CDictionaryListWindow::accept()
{
    if (m_form->CanInsert()) {
        m_form->Insert(m_view);
        QDialog::accept();
    }
}

QSize CDictionaryListWindow::sizeHint() const
{
    return QDialog::sizeHint().expandedTo(
        {fontMetrics().averageCharWidth() * 90, fontMetrics().lineSpacing() * 34});
}
