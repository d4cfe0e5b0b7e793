// SPDX-License-Identifier: MIT
#include "platform/ui/sound_effect_player.h"

#include <QSoundEffect>
#include <QUrl>

CSoundEffectPlayer::CSoundEffectPlayer() = default;
CSoundEffectPlayer::~CSoundEffectPlayer() = default;

void CSoundEffectPlayer::Play(const QString &file)
{
    m_effect = std::make_unique<QSoundEffect>();
    m_effect->setSource(QUrl::fromLocalFile(file));
    m_effect->play();
}
