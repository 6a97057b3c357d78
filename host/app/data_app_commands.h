// The host's own words about data: "znbrowsermanager app inputfield ...".
#ifndef ZN_HOST_DATA_APP_COMMANDS_H
#define ZN_HOST_DATA_APP_COMMANDS_H

namespace znhost {

class AppCall;

/// DATACTRL NAME TYPE: makes an input field. Answers the name.
int AppCreateInputField(AppCall& call);
/// DATACTRL NAME
int AppDeleteInputField(AppCall& call);
/// DATACTRL NAME ?VALUES?: sets what users choose from, each a value of the field's type; none: any value
/// again. Answers it.
int AppInputFieldChoices(AppCall& call);

} // namespace znhost

#endif
