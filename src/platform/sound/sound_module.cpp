#include "platform/sound_player.h"

#include <QHash>
#include <QSoundEffect>
#include <QUrl>
#include <memory>

namespace {

class EffectPlayer : public platform::SoundPlayer {
public:
    void play(const QString& path) override
    {
        auto& effect = effects_[path];
        if (!effect) {
            effect = std::make_unique<QSoundEffect>();
            effect->setSource(QUrl::fromLocalFile(path));
        }
        if (playing_ && playing_ != effect.get()) playing_->stop();
        effect->stop();
        effect->play();
        playing_ = effect.get();
    }

private:
    QHash<QString, std::shared_ptr<QSoundEffect>> effects_;
    QSoundEffect* playing_ = nullptr;
};

} // namespace

extern "C" Q_DECL_EXPORT platform::SoundPlayer* frostel32_create_sound_player()
{
    return new EffectPlayer;
}
