// The messages that several of the data families report.
#ifndef DATA_MESSAGES_H
#define DATA_MESSAGES_H

namespace znlayer {

namespace data_messages {

inline constexpr char noDataCtrl[] = "Cannot get the current Data Control";
inline constexpr char noDataSource[] = "Cannot get handle to current datasource";
/// Of either kind of data source; the name follows.
inline constexpr char unknownDataSource[] = "Cannot find datasource name : ";
inline constexpr char noCriteria[] = "Cannot get handle to the current criteria";
inline constexpr char noView[] = "Cannot get the current view";
inline constexpr char noViewProperty[] = "Cannot get name of the current view property";

} // namespace data_messages

} // namespace znlayer

#endif
