#pragma once

namespace zilvo::platform {

/// A child's notification on its way to the control's handler: an object and one of its member functions. Two
/// pointers, no allocation; the object must outlive the child. An unset one does nothing.
template <class... Arguments>
class Delegate {
public:
    Delegate() = default;
    Delegate(void* target, void (*call)(void*, Arguments...)) : target_(target), call_(call) {}

    explicit operator bool() const noexcept { return call_ != nullptr; }
    void operator()(Arguments... arguments) const {
        if (call_) call_(target_, arguments...);
    }

private:
    void* target_ = nullptr;
    void (*call_)(void*, Arguments...) = nullptr;
};

/// Binds a handler to a child: `calls<&Control::cmdOK_Click>(this)`. The handler takes what the notification
/// gives, or nothing.
template <auto Handler, class Target>
class Binding {
public:
    explicit constexpr Binding(Target* target) : target_(target) {}

    template <class... Arguments>
    operator Delegate<Arguments...>() const {
        return {target_, [](void* target, Arguments... arguments) {
                    auto& object = *static_cast<Target*>(target);
                    if constexpr (requires { (object.*Handler)(arguments...); })
                        (object.*Handler)(arguments...);
                    else
                        (object.*Handler)();
                }};
    }

private:
    Target* target_;
};

template <auto Handler, class Target>
constexpr Binding<Handler, Target> calls(Target* target) {
    return Binding<Handler, Target>(target);
}

} // namespace zilvo::platform
