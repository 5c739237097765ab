// What a screen reader on Windows finds: prints every element of the windows of one process, a line each with tabs
// between depth, control type, name, identifier, access key and states.
//
//   uia TITLE FILE     of the process whose window has that title; what is printed goes to the file, as UTF-8
#include <windows.h>

#include <uiautomation.h>

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

std::FILE* s_file = nullptr;

std::string Utf8(const wchar_t* text)
{
    if (text == nullptr) {
        return {};
    }
    std::string bytes(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr)),
                      '\0');
    WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr);
    bytes.pop_back();
    for (char& byte : bytes) {
        byte = byte == '\n' || byte == '\r' || byte == '\t' ? '|' : byte;
    }
    return bytes;
}

// Wine has no properties with defaults.
VARIANT Property(IUIAutomationElement& element, PROPERTYID property)
{
    VARIANT value;
    VariantInit(&value);
    element.GetCurrentPropertyValueEx(property, TRUE, &value);
    return value;
}

std::string Text(IUIAutomationElement& element, PROPERTYID property)
{
    VARIANT value = Property(element, property);
    std::string text = V_VT(&value) == VT_BSTR ? Utf8(V_BSTR(&value)) : std::string();
    VariantClear(&value);
    return text;
}

bool Is(IUIAutomationElement& element, PROPERTYID property)
{
    const VARIANT value = Property(element, property);
    return V_VT(&value) == VT_BOOL && V_BOOL(&value) != VARIANT_FALSE;
}

long Number(IUIAutomationElement& element, PROPERTYID property)
{
    const VARIANT value = Property(element, property);
    return V_VT(&value) == VT_I4 ? V_I4(&value) : 0;
}

void Walk(IUIAutomation& automation, IUIAutomationElement& element, int depth)
{
    std::fprintf(s_file, "%d\t%ld\t%s\t%s\t%s\t", depth, Number(element, UIA_ControlTypePropertyId),
                 Text(element, UIA_NamePropertyId).c_str(), Text(element, UIA_AutomationIdPropertyId).c_str(),
                 Text(element, UIA_AccessKeyPropertyId).c_str());
    for (const auto& [property, name] :
         {std::pair(UIA_IsEnabledPropertyId, "enabled"), std::pair(UIA_IsKeyboardFocusablePropertyId, "focusable"),
          std::pair(UIA_HasKeyboardFocusPropertyId, "focused"), std::pair(UIA_IsOffscreenPropertyId, "offscreen"),
          std::pair(UIA_ValueIsReadOnlyPropertyId, "readonly")}) {
        if (Is(element, property)) {
            std::fprintf(s_file, "%s ", name);
        }
    }
    std::fputc('\n', s_file);

    IUIAutomationCondition* all = nullptr;
    IUIAutomationElementArray* children = nullptr;
    int count = 0;
    if (SUCCEEDED(automation.CreateTrueCondition(&all)) &&
        SUCCEEDED(element.FindAll(TreeScope_Children, all, &children)) && children != nullptr) {
        children->get_Length(&count);
    }
    for (int i = 0; i < count; ++i) {
        IUIAutomationElement* child = nullptr;
        if (SUCCEEDED(children->GetElement(i, &child)) && child != nullptr) {
            Walk(automation, *child, depth + 1);
            child->Release();
        }
    }
}

struct Wanted
{
    IUIAutomation* automation;
    DWORD process;
};

BOOL CALLBACK WalkWindow(HWND window, LPARAM wanted)
{
    const auto& [automation, process] = *reinterpret_cast<Wanted*>(wanted);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    IUIAutomationElement* element = nullptr;
    if (owner == process && IsWindowVisible(window) && SUCCEEDED(automation->ElementFromHandle(window, &element))) {
        Walk(*automation, *element, 0);
        element->Release();
    }
    return TRUE;
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    if (argc != 3) {
        return EXIT_FAILURE;
    }
    s_file = _wfopen(argv[2], L"wb");
    CoInitializeEx(nullptr, COINIT_MULTITHREADED);
    Wanted wanted{nullptr, 0};
    GetWindowThreadProcessId(FindWindowW(nullptr, argv[1]), &wanted.process);
    if (s_file == nullptr || wanted.process == 0 ||
        FAILED(CoCreateInstance(__uuidof(CUIAutomation), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IUIAutomation),
                                reinterpret_cast<void**>(&wanted.automation)))) {
        return EXIT_FAILURE;
    }
    EnumWindows(WalkWindow, reinterpret_cast<LPARAM>(&wanted));
    std::fclose(s_file);
    return EXIT_SUCCESS;
}
