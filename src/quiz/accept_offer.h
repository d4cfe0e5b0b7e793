// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CQuizSession;
class CTexts;

/// What the button "I was right" does when it is pressed: makes an answer that was judged wrong a further right
/// one, or takes that back.
struct AcceptOffer
{
    enum class Kind { Nothing, Accept, TakeBack };

    Kind kind = Kind::Nothing;
    QString answer = {};
    /// What was asked.
    QString word = {};
};

/// The offer about a wrong answer to the word at a position; nothing when it may not be accepted.
AcceptOffer acceptOffer(const CQuizSession &session, int position, const QString &answer);
/// The offer about the answer accepted last; nothing when none can be taken back.
AcceptOffer takeBackOffer(const CQuizSession &session);

/// The button's caption. Texts of the user are shortened.
QString acceptCaption(const AcceptOffer &offer, const CTexts &texts);
/// Says what was accepted, and that `key` takes it back; empty while nothing was.
QString acceptedLine(const AcceptOffer &offer, const QString &key, const CTexts &texts);
