;; Humid-air calculations in the headless editor: the supply air for a room, a state point
;; from dry-bulb temperature and relative humidity, and a mixture of outdoor and return air.
;; Each dialog is answered by the actions queued for it, as a designer would fill it in; the
;; results go to wair002.txt and gscal.txt in the current folder.
;; Run with: tools/setup.sh example

;; Supply air: an office at 24 °C and 55 %, 18.5 kW of total cooling load, 6 kg/h of
;; moisture, supplied 8 K below the room. Save the result.
(host-dialog "gs_caldlg"
  '((set "tn_value" "24") (set "rhn_value" "55") (set "q_value" "18.5")
    (set "w_value" "6") (set "dt_value" "8") (press "cal")))
(host-dialog "gscalres" '((press "saveres")))
(c:gscal)

;; State point: outdoor summer air in Shanghai, 34.4 °C and 55 % at 100.57 kPa.
(host-dialog "ci_dt"
  '((set "pressure" "100.57") (set "tfy" "1") (set "temp" "34.4") (set "fy" "55")
    (press "result")))
(host-dialog "i_dresdlg" '((press "saveres")))
(c:ci_dt)

;; Air mixing: 18000 kg/h of outdoor air with 42000 kg/h of return air (the dialog's own
;; starting values); the mixture opens in the state-point result dialog and is saved too.
(host-dialog "airmixdlg" '((press "procres")))
(host-dialog "i_dresdlg" '((press "saveres")))
(c:airmix)
(princ)
