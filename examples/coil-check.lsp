;; Cooling-coil check in the headless editor: the air of an air-handling unit passes one
;; JW30 chilled-water coil of 6 rows from the bundled device database (datlib/sc.dat).
;; The dialog is answered by the actions queued for it, as a designer would fill it in;
;; the check is saved to sccal.txt in the current folder, then the file is listed.
;; Run with: tools/setup.sh example

;; 24000 kg/h of air at 27 °C dry bulb and 19.5 °C wet bulb, 24000 kg/h of water at 7 °C.
;; The model list holds the models of the database in file order: JW10, JW20, JW30, JW40.
(host-dialog "sccaldlg"
  '((select "type" "2") (set "Nn" "6") (set "nu_value" "1") (set "conn" "parallel")
    (set "t1_value" "27") (set "ts1_value" "19.5") (set "G_value" "24000")
    (set "tw1_value" "7") (set "W_value" "24000") (press "cal") (press "saveres")))
(c:sccal)

;; The same air through two 4-row JW20 coils in series, saved below the first check.
(host-dialog "sccaldlg"
  '((select "type" "1") (set "Nn" "4") (set "nu_value" "2") (set "conn" "series")
    (set "t1_value" "27") (set "ts1_value" "19.5") (set "G_value" "24000")
    (set "tw1_value" "7") (set "W_value" "24000") (press "cal") (press "saveres")))
(c:sccal)
(princ)
