// The fixed messages: what the scripting layer and its hosts say in the same words.
#ifndef ZN_BROWSER_MESSAGES_H
#define ZN_BROWSER_MESSAGES_H

/// Error texts that belong to no family of commands. A host that fails for one of these reasons uses the text
/// from here, so that scripts see one reason in one wording. Constants: they exist before any object does.
namespace znBrowserMessages {

// A current object is missing.
inline constexpr char noCurrentDataCtrl[] = "Current Data Control object is not set";
inline constexpr char noCurrentFindRequest[] = "Current Find Request object is not set";
inline constexpr char noCurrentFreeFolder[] = "Current Free Folder object is not set";
inline constexpr char noCurrentView[] = "Current View object is not set";
inline constexpr char noCurrentViewProperty[] = "Current View Property object is not set";
inline constexpr char noCurrentWindow[] = "Current Window object is not set";
/// The current view has no data control.
inline constexpr char noDataCtrlForView[] = "Data Control is not set for View";

/// An operation was handed a null object where one is required.
inline constexpr char nullPointer[] = "Null pointer hit";

// Faults of the system itself. The scripting layer reports only the last of them, for what a host throws
// that says nothing.
inline constexpr char notNull[] = "Initialized memory where null is expected, possible memory leak";
inline constexpr char outOfMemory[] = "Could not create new object in the heap, possibly unsufficient memory";
inline constexpr char unexpectedEnum[] = "Unexpected enum value supplied";
inline constexpr char foreignObject[] = "Attempt to operate on object belonging to different manager";
inline constexpr char getChildrenFailed[] = "View::GetChildren(output,parent) call failed";
inline constexpr char unexpectedCleanItem[] = "Unexpected clean item";
inline constexpr char unexpectedDirtyItem[] = "Unexpected dirty item";
inline constexpr char unexpectedError[] = "Unexpected general error";

} // namespace znBrowserMessages

#endif
