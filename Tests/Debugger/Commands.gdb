set pagination off
set print address off
set print pretty on
set breakpoint pending on
break LookHere
run
print pkPopup
print kTexts
print eDynamic
continue
print kManager
print pkPopup
print kText
print kTexts
print eDynamic
print kManager.m_CurrentDialog.m_eDialogID
call kManager.PrintDialogHistory()
kill
