#pragma once

#include "zilvo/platform/component/Object.h"
#include "zilvo/platform/hosting/HostedControl.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace zilvo::console {

/// Writes down, a line each, what a host can see of its objects: every event, notification and failure when it comes,
/// and before it whatever member of an object, its surface or one of its widgets is no longer what it was. What happens
/// while a handler runs is indented. Numbers and texts are written the same on every machine.
class Observer {
public:
    Observer();
    Observer(const Observer&) = delete;
    Observer& operator=(const Observer&) = delete;
    ~Observer();

    /// Ends the watching of an object.
    struct Forget {
        Observer* observer = nullptr;
        void operator()(const platform::Object* object) const noexcept { observer->forget(*object); }
    };
    using Watch = std::unique_ptr<const platform::Object, Forget>;

    /// Watches an object, first of all before it has a site, as long as the result is kept; which must neither outlive
    /// the observer nor the object. The first one of a class is written down whole, without what is usual; a later one
    /// where it differs from that.
    [[nodiscard]] Watch created(platform::Object& object);
    /// Watches the host's extender of the object that was created last, too.
    void watchExtender(platform::Described& extender);

    /// Looks at all objects.
    void look();
    /// Something on the object's surface has changed: its widgets are looked at, so that an order of steps shows.
    void viewChanged(const platform::Object& object);
    /// All objects are looked at, then the line is written, as one of the object's.
    void note(const platform::Object& object, const std::string& line);
    /// The same for what is no object's.
    void note(const std::string& line);

    /// A handler of the host runs as long as this lives.
    class Handling {
    public:
        explicit Handling(Observer* observer) noexcept : observer_(observer) {
            if (observer_) ++observer_->depth_;
        }
        Handling(const Handling&) = delete;
        Handling& operator=(const Handling&) = delete;
        ~Handling();

    private:
        Observer* observer_;
    };

    /// Looks at all objects, and gives and forgets the lines so far.
    std::vector<std::string> taken();

private:
    class Watched;
    struct Part;
    enum class Members : std::uint8_t { OfWidgets, All };
    /// What is known of a class: how many objects there have been, and the values of the first one's parts.
    struct Known {
        std::size_t created = 0;
        std::vector<std::vector<std::string>> values;
    };

    void forget(const platform::Object& object) noexcept;
    Watched* find(const platform::Object& object) noexcept;
    void look(Watched& watched, Members members);
    std::string prefixOf(const Watched& watched) const;
    void write(const std::string& line);
    void writeChange(const std::string& label, const std::string& change);
    void writeWhole(const Part& part);
    void writeDifferences(const Watched& watched, const Part& part, const std::vector<std::string>& before);

    std::vector<std::unique_ptr<Watched>> watched_; ///< in the order of their creation
    std::string newest_;                            ///< the name of the object that was created last, alive or not
    std::map<std::string, Known> known_;
    std::vector<std::string> lines_;
    std::string open_; ///< the label of the last line while it can take more changes
    unsigned depth_ = 0;
    bool looking_ = false;
};

/// A value as the observer writes it: True, 12.5, "text", 0x00C0C0C0, an enumeration's member by name.
std::string shownValue(const platform::Variant& value, const platform::EnumerationDescription* enumeration = nullptr);

} // namespace zilvo::console
