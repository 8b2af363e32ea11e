#include "zilvo/platform/component/ClassFactory.h"

#include <memory>

namespace zilvo::platform {

void ClassFactory::Release() noexcept {
    if (--references_ == 0) std::default_delete<ClassFactory>()(this);
}

Status ClassFactory::CreateInstance(Ref<Object>& instance, ErrorInfo* error) noexcept {
    return atTheEdge(
        error, [&] { return toUtf8(entry_.identity.name); }, [&] { instance = entry_.create(lock_.module()); });
}

Status getClassObject(ComponentModule& module, const Guid* classId, const Guid* interfaceId, void** object) noexcept {
    if (!object) return Status::NullPointer;
    *object = nullptr;
    if (!classId || !interfaceId) return Status::NullPointer;
    if (*classId == InformationClass && *interfaceId == InformationInterface) {
        *object = &module;
        return Status::Ok;
    }
    const ClassEntry* entry = module.description().find(*classId);
    if (!entry) return Status::ClassNotAvailable;
    const bool isApplication = *interfaceId == ApplicationInterface && entry->identity.isApplicationObject();
    if (*interfaceId != ClassFactoryInterface && !isApplication) return Status::NoInterface;
    return atTheEdge(
        nullptr, [] { return std::string(); },
        [&] {
            if (isApplication) {
                const Ref<Object> application = applicationObject(module, *entry);
                application->AddRef();
                *object = application.get();
            } else {
                auto factory = std::make_unique<ClassFactory>(module, *entry);
                factory->AddRef();
                *object = factory.release();
            }
        });
}

Ref<Object> applicationObject(ComponentModule& module, const ClassEntry& entry) {
    for (Object* living = module.applications_; living; living = living->nextApplication_)
        if (&living->description() == &entry.description) return Ref<Object>(*living);
    Ref<Object> made = entry.create(module);
    made->nextApplication_ = std::exchange(module.applications_, made.get());
    return made;
}

Status canUnloadNow(const ComponentModule& module) noexcept {
    return module.canUnload() ? Status::Ok : Status::False;
}

} // namespace zilvo::platform
