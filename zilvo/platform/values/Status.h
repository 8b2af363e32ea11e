#pragma once

#include <cstdint>
#include <exception>
#include <new>
#include <string>

namespace zilvo::platform {

/// The platform's status codes. Ok is the only success that carries a result; False is a success that answers no.
enum class Status : std::uint32_t {
    Ok = 0x00000000,
    False = 0x00000001,
    NotImplemented = 0x80004001,
    NoInterface = 0x80004002,
    NullPointer = 0x80004003,
    Failed = 0x80004005,
    UnexpectedCall = 0x8000FFFF,
    UnknownMember = 0x80020003,
    ArgumentCount = 0x8002000E,
    FileNotFound = 0x80070002,
    OutOfMemory = 0x8007000E,
    BadComponent = 0x800700C1,
    InUse = 0x800700AA,
    ClassNotAvailable = 0x80040111,
    RegistrationsUnreadable = 0x80040150,
    RegistrationsUnwritable = 0x80040151,
    Overflow = 0x800A0006,
    SubscriptOutOfRange = 0x800A0009,
    TypeMismatch = 0x800A000D,
    MissingElement = 0x800A0154,
    InvalidPropertyValue = 0x800A017C,
    ReadOnlyProperty = 0x800A017F,
    WriteOnlyProperty = 0x800A018A,
};

constexpr bool succeeded(Status status) noexcept {
    return (static_cast<std::uint32_t>(status) & 0x80000000U) == 0;
}

/// The status in words, for messages and scripts: "overflow", "type mismatch", "unknown member".
const char* nameOf(Status status) noexcept;

/// A failing call. The message (UTF-8) names the object, the member and the offending value. It travels through
/// handlers untouched and undoes nothing; the module's edge turns it into a status.
class Failure : public std::exception {
public:
    Failure(Status status, std::string message);
    ~Failure() override;
    Failure(const Failure&) = default;
    Failure& operator=(const Failure&) = default;

    Status status() const noexcept { return status_; }
    const char* what() const noexcept override { return message_.c_str(); }

private:
    Status status_;
    std::string message_;
};

/// Where a failing call across the module's edge leaves its message; untouched by a call that succeeds.
struct ErrorInfo {
    std::string message;
};

/// Turns the exception being handled into the status that the module's edge gives. `context` ("ssOKCancel.Cancel")
/// is put in front of the message; `error` may be null.
Status statusOfCurrentException(ErrorInfo* error, const std::string& context) noexcept;

namespace detail {

/// Kept out of the way of the calls that succeed. Without memory for the context the message stands alone.
template <class Context>
[[gnu::cold, gnu::noinline]] inline Status failedAtTheEdge(ErrorInfo* error, const Context& context) noexcept {
    std::string name;
    try {
        name = context();
    } catch (const std::bad_alloc&) {
    }
    return statusOfCurrentException(error, name);
}

} // namespace detail

/// The module's edge: runs `body`, which may throw, and gives a status. `context` is called only on failure and
/// names the object and the member.
template <class Body, class Context>
inline Status atTheEdge(ErrorInfo* error, const Context& context, const Body& body) noexcept {
    try {
        body();
        return Status::Ok;
    } catch (...) {
        return detail::failedAtTheEdge(error, context);
    }
}

/// The host's side of the edge: throws the Failure that a status stands for; `error` holds its message.
void throwUnlessOk(Status status, const ErrorInfo& error);

/// Runs `body` and puts the context in front of the message of what it fails with.
template <class Context, class Body>
inline void inContext(const Context& context, const Body& body) {
    ErrorInfo error;
    const Status status = atTheEdge(&error, context, body);
    throwUnlessOk(status, error);
}

} // namespace zilvo::platform
