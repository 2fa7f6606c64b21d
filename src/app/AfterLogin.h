#pragma once

namespace sandogh {

class AppContext;
struct UserAccount;

// What follows a successful login, besides opening the main window: the user becomes the
// context's user (and the error log's), is remembered under "Retail"/"UserInfo" (UserID,
// UserName, Name), the machine's UserProfile is read into the context, the cash desk of this
// machine is looked up, and the companion programs of the program folder are started.
class AfterLogin {
public:
    explicit AfterLogin(AppContext& context) : m_context(context) {}

    void run(const UserAccount& user);

private:
    AppContext& m_context;
};

}  // namespace sandogh
