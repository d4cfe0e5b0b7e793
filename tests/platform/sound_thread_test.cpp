// SPDX-License-Identifier: MIT
#include "platform/sound_thread.h"
#include "support/test.h"

#include <QStringList>

#include <atomic>
#include <memory>
#include <semaphore>

namespace {

/// A sound system that lets wait until a test lets it go on.
struct SlowSounds
{
    std::binary_semaphore opens{0};
    std::counting_semaphore<> plays{0};
    std::counting_semaphore<> begun{0};
    QStringList played;

    SoundOutput Open()
    {
        opens.acquire();
        return [this](const QString &file) {
            played.append(file);
            begun.release();
            plays.acquire();
        };
    }
};

}

class SoundThreadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nobodyWaits()
    {
        const auto sounds = std::make_shared<SlowSounds>();
        const auto ended = std::make_shared<std::binary_semaphore>(0);
        {
            CSoundThread player([sounds, ended] {
                const SoundOutput output = sounds->Open();
                ended->release();
                return output;
            });
            player.Play(u"a"_s);
            player.Play(u"b"_s);
        }
        sounds->opens.release();
        ended->acquire();
        QVERIFY(sounds->played.isEmpty()); // The program was about to end.
    }

    void theLatestCounts()
    {
        SlowSounds sounds;
        sounds.opens.release();
        std::atomic<std::chrono::milliseconds> now{};
        CSoundThread player([&sounds] { return sounds.Open(); }, [&now] { return now.load(); });
        player.Play(u"a"_s);
        sounds.begun.acquire();
        player.Play(u"b"_s);
        player.Play(u"c"_s);
        sounds.plays.release();
        sounds.begun.acquire();
        player.Play(u"too late"_s);
        now = std::chrono::seconds(2);
        sounds.plays.release();
        player.Play(u"d"_s);
        sounds.plays.release();
        sounds.begun.acquire();
        QCOMPARE(sounds.played, (QStringList{u"a"_s, u"c"_s, u"d"_s}));
    }
};

QTEST_APPLESS_MAIN(SoundThreadTest)
#include "sound_thread_test.moc"
