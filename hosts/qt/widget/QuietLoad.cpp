#include "hosts/qt/widget/QuietLoad.h"

#include "hosts/qt/texts/ControlText.h"
#include "platform/Process.h"
#include "runtime/RuntimeError.h"

#include <exception>
#include <vector>

namespace zorvane {

namespace {

/// Keeps messages instead of showing them.
class KeptMessages final : public MessageDisplay {
  public:
    void Show(const Message& message) override { messages_.push_back(message); }

    bool Any() const { return !messages_.empty(); }
    QString Last() const { return ControlText(messages_.back().prompt); }
    void ShowAll() const {
        for (const Message& message : messages_)
            CurrentMessages().Show(message);
    }

  private:
    std::vector<Message> messages_;
};

} // namespace

std::optional<QuietLoad::Failure> QuietLoad::Run(const std::function<bool()>& load) {
    KeptMessages kept;
    try {
        const TakenMessages taken(kept);
        if (!load()) {
            // The control says nothing where it has nothing to look for.
            return Failure{
                0, {}, kept.Any() ? kept.Last() : tr("No plate or no library is named.")};
        }
    } catch (const RuntimeError& error) {
        return Failure{error.Number(), QString::fromStdString(error.Source()),
                       ControlText(error.Description())};
    } catch (const std::exception& error) { // from a slot of the host
        return Failure{0, {}, QString::fromLocal8Bit(error.what())};
    }
    kept.ShowAll(); // said by whoever heard of the new plate
    return std::nullopt;
}

} // namespace zorvane
