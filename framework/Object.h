#pragma once

#include <memory>

class CArchive;
class CObject;

/// Describes a class at run time: its name, its base and how to create an object of it.
struct CRuntimeClass
{
    const char* m_lpszClassName;
    std::unique_ptr<CObject> (*m_pfnCreateObject)(); ///< null when objects can't be created by class
    const CRuntimeClass* m_pBaseClass;               ///< null for CObject

    /// A new object of the class, or null when it can't be created by class or memory is short.
    std::unique_ptr<CObject> CreateObject() const;

    /// True for the class itself and everything that derives from it.
    bool IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

/// Root of the classes that are known by run-time class.
class CObject
{
public:
    static const CRuntimeClass classCObject;

    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual const CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;
    virtual void Serialize(CArchive& archive);

    bool IsKindOf(const CRuntimeClass* pClass) const;
};

/// The run-time class of `class_name`.
#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

/// In the class: known by run-time class, and creatable by it.
#define DECLARE_DYNCREATE(class_name)                                                                                  \
public:                                                                                                                \
    static const CRuntimeClass class##class_name;                                                                      \
    const CRuntimeClass* GetRuntimeClass() const override;

/// In the source: the parts that DECLARE_DYNCREATE announced.
#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                               \
    const CRuntimeClass class_name::class##class_name = {                                                              \
        #class_name, []() -> std::unique_ptr<CObject> { return std::make_unique<class_name>(); },                      \
        RUNTIME_CLASS(base_class_name)};                                                                               \
    const CRuntimeClass* class_name::GetRuntimeClass() const                                                           \
    {                                                                                                                  \
        return RUNTIME_CLASS(class_name);                                                                              \
    }

/// In the class: known by run-time class only.
#define DECLARE_DYNAMIC(class_name) DECLARE_DYNCREATE(class_name)

/// In the source: the parts that DECLARE_DYNAMIC announced.
#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                                 \
    const CRuntimeClass class_name::class##class_name = {#class_name, nullptr, RUNTIME_CLASS(base_class_name)};        \
    const CRuntimeClass* class_name::GetRuntimeClass() const                                                           \
    {                                                                                                                  \
        return RUNTIME_CLASS(class_name);                                                                              \
    }
